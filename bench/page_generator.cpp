#include "page_generator.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <vector>

namespace zentrel::bench {

namespace {

constexpr int kVocabulary = 20000;
constexpr int kMaxUses = 900;

// Common words, left out of the count by the standard filter dictionary, so never capped.
constexpr std::array<const char*, 24> kCommon = {
    "the", "of", "and", "to", "in",   "is",  "it",   "that", "for", "on",  "with", "as",
    "was", "be", "by",  "at", "this", "are", "from", "or",   "an",  "but", "not",  "have"};

constexpr std::array<const char*, 20> kSyllables = {
    "ka", "lo",  "mi",   "ne",  "su",  "ta",  "ri",  "vo",  "pe",  "da",
    "gu", "zen", "tral", "mor", "bel", "fin", "sto", "qua", "rix", "wen"};

std::string Vocabulary_Word(int index) {
  std::string word;
  int n = index + 20;
  while (n > 0) {
    word += kSyllables[static_cast<size_t>(n % 20)];
    n /= 20;
  }
  return word;
}

class Writer {
 public:
  explicit Writer(unsigned seed) : rng_(seed), uses_(kVocabulary, 0) {
    double total = 0;
    for (int r = 1; r <= kVocabulary; ++r)
      total += 1.0 / r;
    double acc = 0;
    for (int r = 1; r <= kVocabulary; ++r) {
      acc += 1.0 / r / total;
      cumulative_.push_back(acc);
    }
  }

  std::string Word() {
    if (Uniform(10) < 4)
      return kCommon[Uniform(kCommon.size())];
    for (int attempt = 0; attempt < 8; ++attempt) {
      double u = std::uniform_real_distribution<double>(0, 1)(rng_);
      auto it = std::lower_bound(cumulative_.begin(), cumulative_.end(), u);
      int i = static_cast<int>(std::min<std::ptrdiff_t>(it - cumulative_.begin(), kVocabulary - 1));
      if (uses_[static_cast<size_t>(i)] < kMaxUses)
        return Use(i);
    }
    while (uses_[next_] >= kMaxUses)
      next_ = (next_ + 1) % kVocabulary;
    return Use(static_cast<int>(next_));
  }

  // A text run that starts and ends with a space, so words never join across tags.
  std::string Sentence(int words) {
    std::string s = " ";
    for (int i = 0; i < words; ++i) {
      s += Word();
      s += (i + 1 == words) ? ". " : (Uniform(12) == 0 ? ", " : " ");
    }
    return s;
  }

  size_t Uniform(size_t n) { return std::uniform_int_distribution<size_t>(0, n - 1)(rng_); }
  std::string LineEnd() { return Uniform(2) ? "\r\n" : "\n"; }

 private:
  std::string Use(int i) {
    ++uses_[static_cast<size_t>(i)];
    return Vocabulary_Word(i);
  }
  std::mt19937 rng_;
  std::vector<double> cumulative_;
  std::vector<int> uses_;
  size_t next_ = 0;
};

// Keywords from the middle of the vocabulary: three-syllable words, which only a few rare
// words contain, so that even the text scan, which counts a keyword inside longer words and
// anywhere in the markup, gives each one far fewer than the keyword sort's 5000 matches.
constexpr int kFirstKeyword = 400;

std::string Keywords(int count) {
  std::string k;
  for (int i = 0; i < count; ++i) {
    if (i)
      k += ", ";
    k += Vocabulary_Word(kFirstKeyword + i * 7);
    if (i % 5 == 4)
      k += " " + Vocabulary_Word(kFirstKeyword + 1 + i * 7);  // a few two-word phrases
  }
  return k;
}

std::string Head(Writer& w, int keywords) {
  std::string h = "<!DOCTYPE html>\r\n<html lang=\"en\">\r\n<head>\r\n";
  h += "<title>" + Vocabulary_Word(kFirstKeyword) + " " + Vocabulary_Word(kFirstKeyword + 7) +
       " guide</title>\r\n";
  h += "<meta name=\"keywords\" content=\"" + Keywords(keywords) + "\">\r\n";
  h += "<meta content=\"" + w.Sentence(12) + "\" name=\"description\">\r\n";
  const char* names[] = {"abstract", "author",        "copyright",    "generator", "robots",
                         "rating",   "revisit-after", "distribution", "expires",   "progid"};
  for (int i = 0; i < 10; ++i) {
    if (i % 2) {
      h += std::string("<META NAME=\"") + names[i] + "\" CONTENT=\"" + w.Sentence(4) + "\">\n";
    } else {
      h += std::string("<meta content=\"") + w.Sentence(4) + "\" name=\"" + names[i] + "\">\r\n";
    }
  }
  h += "<style>\r\nbody { font-family: serif; }\r\np > a { color: #336; }\r\n</style>\r\n";
  h += "<script>\r\nvar x = 1 < 2 && \"<p>\" != '</p>';\r\n</script>\r\n</head>\r\n";
  return h + "<body>\r\n";
}

std::string Block(Writer& w) {
  switch (w.Uniform(6)) {
    case 0:
      return "<ul>" + w.LineEnd() + "<li>" + w.Sentence(6) + "</li><li>" + w.Sentence(5) + "</li>" +
             w.LineEnd() + "</ul>" + w.LineEnd();
    case 1:
      return "<table><tr><td>" + w.Sentence(4) + "</td><td>" + w.Sentence(3) +
             "</td></tr></table>" + w.LineEnd();
    case 2:
      return "<img src=\"p.png\" alt=\"" + w.Word() + " " + w.Word() + "\">" + w.Sentence(3) +
             w.LineEnd();
    case 3:
      return "<!-- " + w.Word() + " note -->" + w.LineEnd();
    default: {
      std::string p = "<p>" + w.Sentence(40) + "<a href=\"/x\">" + w.Word() + "</a>" +
                      w.Sentence(30) + "&amp; " + w.Sentence(25) + "&nbsp;</p>";
      return p + w.LineEnd();
    }
  }
}

}  // namespace

std::string Generate_Page(size_t targetBytes, unsigned seed, int keywords) {
  Writer w(seed);
  std::string page = Head(w, keywords);
  while (page.size() < targetBytes)
    page += Block(w);
  return page + "</body>\r\n</html>\r\n";
}

}  // namespace zentrel::bench

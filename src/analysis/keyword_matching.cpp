#include "analysis/keyword_matching.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <cstdio>
#include <string_view>
#include <vector>

#include "app/app_state.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "words/word_extraction.h"

namespace zentrel::analysis {

namespace {

std::string UnderCaseRule(const AppState& s, std::string_view t) {
  return s.KeywordsForceSameCase != 0 ? text::UCase(t) : std::string(t);
}

// Occurrences of needle in haystack, each search starting one character after the last hit,
// so overlapping occurrences all count. An empty needle is found at every position up to one
// past the end, as the position search reports it.
int16_t CountOverlapping(std::string_view haystack, std::string_view needle, int16_t start) {
  int16_t n = start;
  if (needle.empty())
    return ToInt16(int64_t{n} + static_cast<int64_t>(haystack.size()) + 1);
  size_t p = haystack.find(needle);
  while (p != std::string_view::npos) {
    n = ToInt16(int32_t{n} + 1);
    p = haystack.find(needle, p + 1);
  }
  return n;
}

// The keyword cut into its words at runs of spaces; an empty keyword is one empty word.
std::vector<std::string> SplitAtSpaces(const std::string& phrase) {
  std::vector<std::string> out;
  size_t i = 0;
  while (true) {
    size_t end = phrase.find(' ', i);
    out.push_back(phrase.substr(i, end == std::string::npos ? std::string::npos : end - i));
    if (end == std::string::npos)
      break;
    i = phrase.find_first_not_of(' ', end);
    if (i == std::string::npos)
      break;
  }
  return out;
}

void PrepareKeywordWords(AppState& s) {
  const size_t slots = static_cast<size_t>(s.KeywordCapacity) + 1;
  s.KeywordWords.assign(slots, std::vector<std::string>());
  s.KeywordLastWordIndex.assign(slots, 0);
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    s.CurrentKeyword = words::MakeStringSingleSpaced(UnderCaseRule(s, At(s.KeywordList, i)));
    const std::string phrase = text::Trim(s.CurrentKeyword);
    std::vector<std::string> parts = SplitAtSpaces(phrase);
    const int16_t last = ToInt16(static_cast<int64_t>(parts.size()) - 1);
    if (last >= s.KeywordWordsSize)
      s.KeywordWordsSize = ToInt16(int32_t{last} + 1);
    At(s.KeywordPhrase, i) = phrase;
    At(s.KeywordLastWordIndex, i) = last;
    At(s.KeywordWords, i) = std::move(parts);
  }
}

void ScanText(AppState& s) {
  const std::string body = UnderCaseRule(s, s.DocumentText);
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    s.platform->DoEvents();  // each keyword is a search of the whole page
    s.CurrentKeyword = UnderCaseRule(s, At(s.KeywordList, i));
    int16_t& matches = At(s.KeywordBodyMatches, i);
    matches = CountOverlapping(body, s.CurrentKeyword, matches);
  }
}

// Word k of the document under the case rule's left side: the stored word, and the empty
// slot for k = count.
std::string_view Document_Word(const AppState& s, int32_t k, int32_t count) {
  return k < count ? s.DocumentWords[static_cast<size_t>(k)] : std::string_view();
}

// The document word equals the keyword word, which the case rule has already upper-cased
// when it applies; the document word is folded on the fly rather than copied.
bool Same_Word(std::string_view word, std::string_view keywordWord, bool upper) {
  if (word.size() != keywordWord.size())
    return false;
  if (!upper)
    return word == keywordWord;
  for (size_t c = 0; c < word.size(); ++c) {
    if (text::UpperAscii(word[c]) != keywordWord[c])
      return false;
  }
  return true;
}

// The keywords' first words (already under the case rule), each with the keywords that start
// with it, found by the hash of a document word folded on the fly.
class FirstWords {
 public:
  FirstWords(const AppState& s, bool upper) : upper_(upper) {
    for (int16_t i = 0; i < s.KeywordCount; ++i) {
      const std::string& first = At(At(s.KeywordWords, i), 0);
      const int32_t known = Group_Of(first);
      if (known >= 0) {
        groups_[static_cast<size_t>(known)].keywords.push_back(i);
        continue;
      }
      groups_.push_back({first, {i}});
      if (groups_.size() * 2 > slots_.size())
        Rehash();
      else
        Place(groups_.size() - 1);
    }
  }

  // The keywords whose first word the document word is, or nullptr.
  const std::vector<int16_t>* Find(std::string_view word) const {
    const int32_t g = Group_Of(word);
    return g < 0 ? nullptr : &groups_[static_cast<size_t>(g)].keywords;
  }

 private:
  struct Group {
    std::string word;
    std::vector<int16_t> keywords;
  };

  int32_t Group_Of(std::string_view word) const {
    if (slots_.empty())
      return -1;
    const size_t mask = slots_.size() - 1;
    for (size_t i = Hash(word) & mask; slots_[i] >= 0; i = (i + 1) & mask) {
      if (Same_Word(word, groups_[static_cast<size_t>(slots_[i])].word, upper_))
        return slots_[i];
    }
    return -1;
  }

  size_t Hash(std::string_view word) const {
    uint64_t h = 0xCBF29CE484222325ULL;
    for (const char c : word)
      h = (h ^ static_cast<unsigned char>(upper_ ? text::UpperAscii(c) : c)) * 0x100000001B3ULL;
    return static_cast<size_t>(h ^ (h >> 32));
  }

  void Place(size_t g) {
    const size_t mask = slots_.size() - 1;
    size_t i = Hash(groups_[g].word) & mask;
    while (slots_[i] >= 0)
      i = (i + 1) & mask;
    slots_[i] = static_cast<int32_t>(g);
  }

  void Rehash() {
    slots_.assign(std::max<size_t>(16, slots_.size() * 2), -1);
    for (size_t g = 0; g < groups_.size(); ++g)
      Place(g);
  }

  bool upper_;
  std::vector<Group> groups_;
  std::vector<int32_t> slots_;
};

// One pass over the words for all keywords at once: only a word that could be some keyword's
// first word (same length and first character) is looked up. The counts are those of the
// keyword-by-keyword scan.
void ScanWords(AppState& s) {
  PrepareKeywordWords(s);
  const int32_t count = s.DocumentWordCount;
  const bool upper = s.KeywordsForceSameCase != 0;
  if (count > 0)
    CheckIndex(count - 1, 0, static_cast<int64_t>(s.DocumentWords.size()) - 1);

  constexpr size_t kLengths = 64;  // longer words share the last row
  std::vector<std::array<bool, 256>> maybeFirst(kLengths);
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    const std::string& first = At(At(s.KeywordWords, i), 0);
    const size_t row = std::min(first.size(), kLengths - 1);
    maybeFirst[row][first.empty() ? 0 : static_cast<unsigned char>(first[0])] = true;
  }
  const FirstWords firstWords(s, upper);

  std::vector<int64_t> found(static_cast<size_t>(s.KeywordCount), 0);
  for (int32_t k = 0; k <= count; ++k) {
    if ((k & 4095) == 4095)
      s.platform->DoEvents();
    const std::string_view word = Document_Word(s, k, count);
    const size_t row = std::min(word.size(), kLengths - 1);
    const char first = word.empty() ? '\0' : upper ? text::UpperAscii(word[0]) : word[0];
    if (!maybeFirst[row][static_cast<unsigned char>(first)])
      continue;
    const std::vector<int16_t>* keywords = firstWords.Find(word);
    if (keywords == nullptr)
      continue;
    for (const int16_t i : *keywords) {
      const std::vector<std::string>& kw = s.KeywordWords[static_cast<size_t>(i)];
      const int16_t last = s.KeywordLastWordIndex[static_cast<size_t>(i)];
      // A phrase matches only where all of its words follow one another inside the list.
      bool whole = true;
      for (int32_t j = 1; j <= last && whole; ++j) {
        whole = k + j < count &&
                Same_Word(Document_Word(s, k + j, count), kw[static_cast<size_t>(j)], upper);
      }
      if (whole)
        ++found[static_cast<size_t>(i)];
    }
  }
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    int16_t& matches = At(s.KeywordBodyMatches, i);
    const int64_t total = int64_t{matches} + found[static_cast<size_t>(i)];
    if (total > INT16_MAX) {
      matches = INT16_MAX;
      RaiseOverflow();
    }
    matches = static_cast<int16_t>(total);
  }
}

void FillBodyView(AppState& s) {
  if (s.ViewBodyShowRaw == 1)
    return;
  const int32_t count = s.DocumentWordCount;
  if (count > 0)
    CheckIndex(count - 1, 0, static_cast<int64_t>(s.DocumentWords.size()) - 1);
  s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox =
      s.DocumentWords.Join(static_cast<size_t>(std::max(count, 0)), ", ");
}

}  // namespace

int16_t Tally_Current_TITLE_Keyword_Matches(AppState& s) {
  const std::string title = UnderCaseRule(s, s.TitleText);
  int16_t n = 0;
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    const std::string keyword = UnderCaseRule(s, At(s.KeywordList, i));
    int16_t& matches = At(s.KeywordTitleMatches, i);
    matches = CountOverlapping(title, keyword, 0);
    if (matches > 0)
      n = ToInt16(int32_t{n} + 1);
  }
  return n;
}

void Tally_Current_Documents_Keyword_Matches(AppState& s) {
  if (s.KeywordsMatchScanType == 0)
    ScanText(s);
  else if (s.KeywordsMatchScanType == 1)
    ScanWords(s);
  FillBodyView(s);
}

std::string Check_Percentage_String(const std::string& value) {
  std::string s = text::Trim(value);
  if (text::Val(s) == 0.0)
    s = "0.0000000000";
  const size_t minus = s.find('-');
  if (minus != std::string::npos) {
    const double e = text::Val(std::string_view(s).substr(minus + 1));
    if (e < 0)
      RaiseInvalidProcedureCall();
    // Only four characters are kept, so a few zeros stand for any longer run.
    const size_t zeros = e > 8 ? 8 : static_cast<size_t>(e);
    s = "." + std::string(zeros, '0') + text::ReplaceAll(s, ".", "");
  }
  if (!s.empty() && s[0] == '.')
    s = "0" + s;
  return s.substr(0, 4);
}

int32_t Calc_Total_Length_Of_Documents_Words(const AppState& s) {
  int64_t total = 0;
  for (int16_t i = 0; i < s.KeywordCount; ++i)
    total += static_cast<int64_t>(At(s.KeywordList, i).size());
  return ToInt32(total);
}

std::string Double_To_Text(double value) {
  if (value == 0.0)
    return " 0";
  if (!std::isfinite(value))
    RaiseOverflow();
  const std::string sign = value < 0 ? "-" : " ";
  // Fifteen significant digits in exponent form: "d.dddddddddddddde+XX".
  char buf[40];
  std::snprintf(buf, sizeof buf, "%.14e", std::fabs(value));
  const std::string formatted = buf;
  const size_t ePos = formatted.find('e');
  std::string digits = formatted.substr(0, 1) + formatted.substr(2, ePos - 2);
  const int exponent = std::stoi(formatted.substr(ePos + 1));
  while (digits.size() > 1 && digits.back() == '0')
    digits.pop_back();

  if (exponent < -4 || exponent >= 15) {
    std::string mantissa = digits.substr(0, 1);
    if (digits.size() > 1)
      mantissa += "." + digits.substr(1);
    char exp[16];
    std::snprintf(exp, sizeof exp, "E%c%02d", exponent < 0 ? '-' : '+', std::abs(exponent));
    return sign + mantissa + exp;
  }
  std::string out;
  if (exponent < 0) {
    out = "." + std::string(static_cast<size_t>(-exponent - 1), '0') + digits;
  } else {
    const size_t intDigits = static_cast<size_t>(exponent) + 1;
    if (digits.size() <= intDigits) {
      out = digits + std::string(intDigits - digits.size(), '0');
    } else {
      out = digits.substr(0, intDigits) + "." + digits.substr(intDigits);
    }
  }
  return sign + out;
}

std::string Keyword_Density_Text(const AppState& s, int16_t i) {
  if (s.DocumentWordCount <= 0)
    return Check_Percentage_String("");
  const double density = static_cast<double>(At(s.KeywordBodyMatches, i)) /
                         static_cast<double>(s.DocumentWordCount) * 100.0;
  return Check_Percentage_String(Double_To_Text(density));
}

}  // namespace zentrel::analysis

#include "heavy_inputs.h"

#include "page_generator.h"

namespace zentrel::bench {

namespace {

constexpr size_t k1M = 1 << 20;

std::string Page_With(const std::string& title, const std::string& keywords,
                      const std::string& body) {
  return "<html><head><title>" + title + "</title><meta name=\"keywords\" content=\"" + keywords +
         "\"></head><body>" + body + "</body></html>\r\n";
}

// A title of one letter repeated, and keywords of 1001 characters that leave such a run only
// after 900 of them or more, then each in its own way: a search compares almost a whole
// keyword at every position, and the keywords share little more than the run.
std::string Near_Miss_Page(size_t titleBytes, int keywords) {
  std::string list;
  for (int i = 0; i < keywords; ++i) {
    const auto tail = static_cast<size_t>(1 + i / 10);
    list += (i ? ", " : "") + std::string(1000 - tail, 'a') + "b" +
            static_cast<char>('b' + i % 10) + std::string(tail - 1, 'c');
  }
  return Page_With(std::string(titleBytes, 'a'), list, "near miss page");
}

// Four megabytes of one filter word, and 100 phrases of that word ending in a word the page
// lacks: every phrase almost matches at every word of the page.
std::string Phrase_Page(size_t phraseWords) {
  std::string list;
  for (char a = 'a'; a < 'a' + 10; ++a) {
    for (char b = 'a'; b < 'a' + 10; ++b)
      list += (list.empty() ? "" : ", ") + Repeat("the ", phraseWords - 1) + "miss" + a + b;
  }
  return Page_With("phrases", list, Repeat("the ", 4 * k1M / 4));
}

// One keyword of about 400 characters listed 1001 times on a 400 KB page: with duplicates
// kept, the report names the keyword once for every pair of copies, half a million lines.
std::string Repeated_Keyword_Page() {
  const std::string keyword = Repeat("lorem ipsum ", 33) + "dolor";
  return Page_With("repeated", Repeat(keyword + ", ", 1000) + keyword, "lorem ipsum dolor sit");
}

std::string No_Prefs() {
  return "";
}

std::string Scan0_Prefs() {
  return "Keywords_MatchingType: 0\r\n";
}

}  // namespace

std::string Repeat(const std::string& piece, size_t times) {
  std::string out;
  out.reserve(piece.size() * times);
  for (size_t i = 0; i < times; ++i)
    out += piece;
  return out;
}

const std::vector<Heavy_Input>& Heavy_Inputs() {
  static const std::vector<Heavy_Input> inputs = {
      {"near-miss-title", [] { return Near_Miss_Page(k1M, 40); }, No_Prefs, false},
      {"near-miss-page-scan0", [] { return Near_Miss_Page(k1M, 1001); }, Scan0_Prefs, false},
      {"near-miss-page-scan1", [] { return Near_Miss_Page(k1M, 1001); }, No_Prefs, false},
      {"keywords-1001-1m-scan0", [] { return Generate_Page(k1M, 1, 1001); }, Scan0_Prefs, false},
      {"keywords-1001-1m-scan1", [] { return Generate_Page(k1M, 1, 1001); }, No_Prefs, false},
      {"keywords-1001-2m-scan0", [] { return Generate_Page(2 * k1M, 1, 1001); }, Scan0_Prefs,
       false},
      {"keywords-1001-2m-scan1", [] { return Generate_Page(2 * k1M, 1, 1001); }, No_Prefs, false},
      {"keywords-1001-4m-scan0", [] { return Generate_Page(4 * k1M, 1, 1001); }, Scan0_Prefs,
       false},
      {"keywords-1001-4m-scan1", [] { return Generate_Page(4 * k1M, 1, 1001); }, No_Prefs, false},
      {"phrases-11-words", [] { return Phrase_Page(11); }, No_Prefs, false},
      {"phrases-101-words", [] { return Phrase_Page(101); }, No_Prefs, false},
      {"repeated-keyword", Repeated_Keyword_Page,
       [] { return std::string("Keywords_RemoveDuplicates: 0\r\n"); }, true},
      {"long-prefs-line", [] { return Generate_Page(100 * 1024); },
       [] { return "StopWordChrs:" + Repeat(".,", 2 * k1M) + "\r\n"; }, false},
  };
  return inputs;
}

}  // namespace zentrel::bench

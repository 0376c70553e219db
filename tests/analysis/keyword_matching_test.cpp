#include "analysis/keyword_matching.h"

#include "analysis_fixture.h"

namespace zentrel::analysis {
namespace {

using Counts = std::vector<int16_t>;

struct Matching : testing::Analysis {
  Matching(const std::vector<std::string>& keywords, const std::vector<std::string>& words) {
    Keywords(keywords);
    Words(words);
  }
  Counts Body() {
    Tally_Current_Documents_Keyword_Matches(s);
    return {s.KeywordBodyMatches.begin(), s.KeywordBodyMatches.begin() + s.KeywordCount};
  }
};

TEST(Tally_Current_TITLE_Keyword_Matches, OverlappingAndInsideWords) {
  Matching m({"cheap", "aa", "art", "none"}, {});
  m.s.TitleText = "Cheap Cheap Shoes aaa Smart Art";
  EXPECT_EQ(Tally_Current_TITLE_Keyword_Matches(m.s), 3);
  EXPECT_EQ(Counts(m.s.KeywordTitleMatches.begin(), m.s.KeywordTitleMatches.begin() + 4),
            (Counts{2, 2, 2, 0}));
  m.s.KeywordsForceSameCase = 0;
  EXPECT_EQ(Tally_Current_TITLE_Keyword_Matches(m.s), 2);
}

TEST(Tally_Current_Documents_Keyword_Matches, TextScanCountsEverywhereInTheSource) {
  Matching m({"shoe", "keywords", "ana"}, {"Shoes", "and", "SHOESTRING", "banana"});
  m.s.KeywordsMatchScanType = 0;
  m.s.DocumentText =
      "<meta name=\"keywords\" content=\"shoe\"><body>Shoes and a SHOESTRING, banana</body>";
  EXPECT_EQ(m.Body(), (Counts{3, 1, 2}));
  EXPECT_EQ(m.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox, "Shoes, and, SHOESTRING, banana");

  // Counts add to what the keyword already had; the part-match setting changes nothing.
  m.s.KeywordsForceSameCase = 0;
  m.s.KeywordsDisablePartMatches = 0;
  EXPECT_EQ(m.Body(), (Counts{4, 2, 4}));
}

TEST(Tally_Current_Documents_Keyword_Matches, WordScanMatchesWholeWordsAndPhrases) {
  Matching m({"shoe", "red  shoes", "Shoes", "blue cat", "\"\""},
             {"red", "Shoes", "shoestring", "red", "shoes", "red", "blue"});
  EXPECT_EQ(m.Body(), (Counts{0, 2, 2, 0, 1}));

  // A phrase whose first word is the document's last word gives no match.
  Matching last({"blue cat", "cat"}, {"cat", "blue"});
  last.s.KeywordsForceSameCase = 0;
  last.s.ViewBodyShowRaw = 1;  // the body view stays as decoded
  last.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox = "as decoded";
  EXPECT_EQ(last.Body(), (Counts{0, 1}));
  EXPECT_EQ(last.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox, "as decoded");

  // Keywords sharing a first word are each counted, whatever the case of the page's words.
  Matching shared({"red", "red shoes", "Red hat", "red"}, {"RED", "shoes", "red", "hat", "Red"});
  EXPECT_EQ(shared.Body(), (Counts{3, 1, 1, 3}));
}

TEST(Check_Percentage_String, CutsToFourCharacters) {
  const std::pair<const char*, const char*> cases[] = {
      {"2.857142", "2.85"}, {" 33.33", "33.3"}, {" 100", "100"},      {" .5", "0.5"},
      {"0", "0.00"},        {"", "0.00"},       {" 1.5E-05", "0.00"},
  };
  for (const auto& [in, out] : cases)
    EXPECT_EQ(Check_Percentage_String(in), out) << in;
}

// Fifteen significant digits, no leading zero, exponent form for very large or small values.
TEST(Double_To_Text, ClassicDecimalText) {
  const std::pair<double, const char*> cases[] = {
      {0.1 + 0.2, " .3"}, {-2.25, "-2.25"}, {1.5e-5, " 1.5E-05"}, {1e15, " 1E+15"}};
  for (const auto& [value, text] : cases)
    EXPECT_EQ(Double_To_Text(value), text);
}

TEST(Keyword_Density_Text, PercentOfAllWords) {
  Matching m({"a"}, {});
  m.s.KeywordBodyMatches[0] = 3;
  m.s.DocumentWordCount = 7;
  EXPECT_EQ(Keyword_Density_Text(m.s, 0), "42.8");
  m.s.DocumentWordCount = 200000;  // written in exponent form
  EXPECT_EQ(Keyword_Density_Text(m.s, 0), "0.00");
  m.s.DocumentWordCount = 0;
  EXPECT_EQ(Keyword_Density_Text(m.s, 0), "0.00");
}

}  // namespace
}  // namespace zentrel::analysis

#include "analysis/keyword_matching.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "analysis/keyword_list.h"
#include "app/app_state.h"
#include "fake_platform.h"
#include "words/word_count.h"

namespace zentrel::analysis {
namespace {

using Counts = std::vector<int16_t>;

struct Matching {
  testing::FakePlatform platform;
  AppState s{platform};

  explicit Matching(const std::vector<std::string>& keywords) {
    Reset_Keyword_List(s);
    for (const std::string& k : keywords)
      Add_Word_To_KeyWord_buffer(s, k);
    s.KeywordsForceSameCase = 1;
    s.KeywordsMatchScanType = 1;
    words::Init_Document_Word_List(s);
  }

  void Words(const std::vector<std::string>& words) {
    s.DocumentWords.Reset(words.size() + 1);  // and the slot after the last word
    for (const std::string& w : words)
      s.DocumentWords.Append(w);
    s.DocumentWordCount = static_cast<int32_t>(words.size());
  }

  Counts Body() {
    Tally_Current_Documents_Keyword_Matches(s);
    return {s.KeywordBodyMatches.begin(), s.KeywordBodyMatches.begin() + s.KeywordCount};
  }
  Counts Title() const {
    return {s.KeywordTitleMatches.begin(), s.KeywordTitleMatches.begin() + s.KeywordCount};
  }
};

TEST(Tally_Current_TITLE_Keyword_Matches, OverlappingAndInsideWords) {
  Matching m({"cheap", "aa", "art", "none"});
  m.s.TitleText = "Cheap Cheap Shoes aaa Smart Art";
  EXPECT_EQ(Tally_Current_TITLE_Keyword_Matches(m.s), 3);
  EXPECT_EQ(m.Title(), (Counts{2, 2, 2, 0}));

  m.s.KeywordsForceSameCase = 0;
  EXPECT_EQ(Tally_Current_TITLE_Keyword_Matches(m.s), 2);
  EXPECT_EQ(m.Title(), (Counts{0, 2, 1, 0}));
}

TEST(Tally_Current_Documents_Keyword_Matches, TextScanCountsEverywhereInTheSource) {
  Matching m({"shoe", "keywords", "ana"});
  m.s.KeywordsMatchScanType = 0;
  m.s.DocumentText =
      "<meta name=\"keywords\" content=\"shoe\"><body>Shoes and a SHOESTRING, banana</body>";
  m.Words({"Shoes", "and", "SHOESTRING", "banana"});
  EXPECT_EQ(m.Body(), (Counts{3, 1, 2}));
  EXPECT_EQ(m.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox, "Shoes, and, SHOESTRING, banana");

  // Counts add to what the keyword already had; the part-match setting changes nothing.
  m.s.KeywordsForceSameCase = 0;
  m.s.KeywordsDisablePartMatches = 0;
  EXPECT_EQ(m.Body(), (Counts{4, 2, 4}));
}

TEST(Tally_Current_Documents_Keyword_Matches, WordScanMatchesWholeWordsAndPhrases) {
  Matching m({"shoe", "red  shoes", "Shoes", "blue cat", "\"\""});
  m.Words({"red", "Shoes", "shoestring", "red", "shoes", "red", "blue"});
  EXPECT_EQ(m.Body(), (Counts{0, 2, 2, 0, 1}));
  EXPECT_EQ(m.s.KeywordPhrase[1], "RED  SHOES");
  EXPECT_EQ(m.s.KeywordLastWordIndex[1], 1);
  EXPECT_EQ(m.s.KeywordWords[1], (std::vector<std::string>{"RED", "SHOES"}));
  EXPECT_EQ(m.s.KeywordWordsSize, 2);

  // A phrase whose first word is the document's last word gives no match.
  Matching last({"blue cat", "cat"});
  last.s.KeywordsForceSameCase = 0;
  last.Words({"cat", "blue"});
  EXPECT_EQ(last.Body(), (Counts{0, 1}));

  // Keywords sharing a first word are each counted, whatever the case of the page's words.
  Matching shared({"red", "red shoes", "Red hat", "red"});
  shared.Words({"RED", "shoes", "red", "hat", "Red"});
  EXPECT_EQ(shared.Body(), (Counts{3, 1, 1, 3}));

  Matching raw({"x"});
  raw.s.ViewBodyShowRaw = 1;
  raw.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox = "as decoded";
  raw.Words({"xx", "x"});
  EXPECT_EQ(raw.Body(), Counts{1});
  EXPECT_EQ(raw.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox, "as decoded");
}

TEST(Check_Percentage_String, CutsToFourCharacters) {
  EXPECT_EQ(Check_Percentage_String("2.857142"), "2.85");
  EXPECT_EQ(Check_Percentage_String(" 33.33"), "33.3");
  EXPECT_EQ(Check_Percentage_String(" 100"), "100");
  EXPECT_EQ(Check_Percentage_String(" .5"), "0.5");
  EXPECT_EQ(Check_Percentage_String("0.5"), "0.5");
  EXPECT_EQ(Check_Percentage_String("0"), "0.00");
  EXPECT_EQ(Check_Percentage_String(""), "0.00");
  EXPECT_EQ(Check_Percentage_String(" 1.5E-05"), "0.00");
  EXPECT_EQ(Check_Percentage_String(" 1E-300"), "0.00");
}

TEST(Double_To_Text, ClassicDecimalText) {
  EXPECT_EQ(Double_To_Text(3.0 / 7.0 * 100.0), " 42.8571428571429");
  EXPECT_EQ(Double_To_Text(0.5), " .5");
  EXPECT_EQ(Double_To_Text(100), " 100");
  EXPECT_EQ(Double_To_Text(0), " 0");
  EXPECT_EQ(Double_To_Text(0.1 + 0.2), " .3");
  EXPECT_EQ(Double_To_Text(0.0001), " .0001");
  EXPECT_EQ(Double_To_Text(1.5e-5), " 1.5E-05");
  EXPECT_EQ(Double_To_Text(-2.25), "-2.25");
  EXPECT_EQ(Double_To_Text(123456789012345.0), " 123456789012345");
  EXPECT_EQ(Double_To_Text(1e15), " 1E+15");
}

TEST(Keyword_Density_Text, PercentOfAllWords) {
  Matching m({"a", "b"});
  m.s.KeywordBodyMatches[0] = 3;
  m.s.KeywordBodyMatches[1] = 1;
  m.s.DocumentWordCount = 7;
  EXPECT_EQ(Keyword_Density_Text(m.s, 0), "42.8");
  EXPECT_EQ(Keyword_Density_Text(m.s, 1), "14.2");
  m.s.DocumentWordCount = 200000;
  EXPECT_EQ(Keyword_Density_Text(m.s, 1), "0.00");
  m.s.DocumentWordCount = 0;
  EXPECT_EQ(Keyword_Density_Text(m.s, 0), "0.00");
  EXPECT_EQ(Calc_Total_Length_Of_Documents_Words(m.s), 2);
}

}  // namespace
}  // namespace zentrel::analysis

#include "analysis/analysis_driver.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/app_state.h"
#include "base/run_time_error.h"
#include "decode/meta_tag_table.h"
#include "document/document_cache.h"
#include "document/tag_scanner.h"
#include "fake_platform.h"
#include "test_files.h"
#include "words/filter_dictionary.h"
#include "words/word_extraction.h"

namespace zentrel::analysis {
namespace {

// The state as start-up leaves it with no preferences file: default settings and the shipped
// standard filter dictionary.
struct Analyser {
  testing::FakePlatform platform;
  AppState s{platform};

  Analyser() {
    for (int c = 'a'; c <= 'z'; ++c)
      s.LetterTable[static_cast<size_t>(c)] = 1;
    for (int c = 'A'; c <= 'Z'; ++c)
      s.LetterTable[static_cast<size_t>(c)] = 1;
    s.WordDelimiterChars = "\"#=<>^()[]{}/.,;:+-_*&!?@%";
    words::Init_Get_word_string_Chr_table(s);
    decode::Init_MetaTag_Table(s);
    document::Build_Tag_list(s);
    s.WordMatchIgnoreAlphaNumeric = 1;
    s.KeywordsDisablePartMatches = 1;
    s.KeywordsSortList = 1;
    s.KeywordsRemoveDoubles = 1;
    s.KeywordsForceSameCase = 1;
    s.KeywordsMatchScanType = 1;
    s.DecodeIncludeBodyText = 1;
    s.DecodeIncludeAltText = 1;
    s.DecodeIncludeTitleWithBody = 1;
    s.EncodeComaSpaceBetweenKeywords = 1;
    s.FilterCapacity = 1000;
    s.Form.WordFiltersPage_WordDictionary =
        testing::ReadTestData("../../resources/dictionary/Zentrel_Standard.txt");
    words::Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
  }

  void File(const std::string& name) {
    s.DocumentLength = document::DO_LOAD_File_TO_CACHE(s, testing::TestDataPath(name));
    s.CurrentFileName = name;
    Meta_Tag_KeyWord_Scan(s, s.CurrentFileName);
  }

  // A page typed into the source editor, then "Rescan".
  void Page(const std::string& html) {
    s.Form.Html_Document_Editor = html;
    Command2_Click(s);
  }

  std::vector<std::string> Lines() const {
    std::vector<std::string> out;
    const std::string& r = s.Form.ReportTextBox;
    size_t start = 0, end;
    while ((end = r.find("\r\n", start)) != std::string::npos) {
      out.push_back(r.substr(start, end - start));
      start = end + 2;
    }
    return out;
  }
  bool Has(const std::string& centred) const {
    for (const std::string& line : Lines()) {
      const size_t first = line.find_first_not_of(' ');
      if (first != std::string::npos && line.substr(first) == centred)
        return true;
    }
    return false;
  }
};

std::string Keywords(int n) {
  std::string list;
  for (int i = 0; i < n; ++i)
    list += (i ? ", kw" : "kw") + std::string(1, static_cast<char>('a' + i / 26)) +
            static_cast<char>('a' + i % 26);
  return "<html><head><meta name=\"keywords\" content=\"" + list + "\"></head><body>" +
         "some words here </body></html>";
}

TEST(Meta_Tag_KeyWord_Scan, WholeReportsMatchTheHandCheckedFiles) {
  Analyser a;
  a.File("analysis_shoes.html");
  EXPECT_EQ(a.s.Form.ReportTextBox, testing::ReadTestData("analysis_shoes.report"));
  EXPECT_EQ(a.s.Form.ScanKeyWords_KeyWordMatches_TextBox,
            " 7 - shoes\r\n 3 - red shoes\r\n 2 - boots\r\n 0 - sandals\r\n ");
  EXPECT_EQ(a.s.Form.ScanKeyWords_KeyWordDensity_TextBox,
            " 29.1% - shoes\r\n 12.5% - red shoes\r\n 8.33% - boots\r\n 0.00% - sandals\r\n");
  EXPECT_EQ(a.s.Form.ScanKeyWords_DocumentWordCount_TextBox,
            " 4 - shoes\r\n 3 - Shoes\r\n 2 - boots\r\n 2 - Red\r\n 1 - Brown\r\n 1 - fine\r\n"
            " 1 - best\r\n 1 - blue\r\n 1 - red\r\n 1 - sell\r\n 1 - Blue\r\n");
  EXPECT_EQ(a.s.Form.Body_Word_Count_Label, "Unique Word Count= 11");
  EXPECT_EQ(a.s.Form.Body_Word_Count_label2, "Word Count= 24");
  EXPECT_EQ(a.s.Form.MetaTag_TextBox[3], "shoes, red shoes, boots, sandals");
  EXPECT_EQ(a.s.Form.MetaTag_TextBox[1], "Shoes for sale");
  EXPECT_EQ(a.s.Form.MetaTag_TextBox[0], "Red Shoes and Blue Shoes");
  EXPECT_EQ(a.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox.substr(0, 30),
            "Red, Shoes, and, Blue, Shoes, ");
  EXPECT_EQ(a.platform.busyDepth, 0);

  // Duplicates reported and removed.
  a.File("analysis_widgets.html");
  EXPECT_EQ(a.s.Form.ReportTextBox, testing::ReadTestData("analysis_widgets_defaults.report"));

  // The same page with a typed filter word, the text scan, low-match removal and the word list.
  a.s.KeywordsMatchScanType = 0;
  a.s.UsersKeywordsText = "Sprockets, the ,";
  a.s.ReportExportWordCount = 1;
  a.s.Form.KeyWords_MinKeyWordMatches_Option = 1;
  a.s.Form.KeyWords_MinKeyWordMatches_DropDown.Text = " 1 Match";
  a.File("analysis_widgets.html");
  EXPECT_EQ(a.s.Form.ReportTextBox, testing::ReadTestData("analysis_widgets.report"));
  EXPECT_EQ(a.s.Form.MetaTag_TextBox[3], "widgets, Widgets, gadget, gizmo");
  EXPECT_EQ(a.s.Form.ScanKeyWords_KeyWordDensity_TextBox,
            " 76.9% - widgets\r\n 76.9% - Widgets\r\n 15.3% - gadget\r\n 7.69% - gizmo\r\n");
}

TEST(Meta_Tag_KeyWord_Scan, KeywordCountAndLengthWarningsAtTheirBoundaries) {
  Analyser a;
  a.Page("<html><body>Nothing to see here</body></html>");
  EXPECT_TRUE(a.Has("Number of KeyWords: 0 *** WARNING *** Document Has No Keywords"));
  EXPECT_TRUE(a.Has("KeyWord Characters Length: 0 Characters"));
  EXPECT_FALSE(a.Has("KeyWord To TITLE Matches"));
  EXPECT_FALSE(a.Has("-= KeyWord Count =-"));
  EXPECT_FALSE(a.Has("-= KeyWord Density =-"));
  EXPECT_EQ(a.s.Form.ScanKeyWords_KeyWordMatches_TextBox, " ");
  EXPECT_EQ(a.s.Form.ScanKeyWords_KeyWordDensity_TextBox, "");

  a.Page(Keywords(20));
  EXPECT_TRUE(a.Has("Number of KeyWords: 20"));
  a.Page(Keywords(21));
  EXPECT_TRUE(a.Has("Number of KeyWords: 21 *** WARNING *** Document Has OVER 20 Keywords"));

  // One keyword with no match: K = length(" 0 - " + keyword) + 2.
  const std::string head = "<html><head><meta name=\"keywords\" content=\"";
  a.Page(head + std::string(248, 'q') + "\"></head><body>text</body></html>");
  EXPECT_TRUE(a.Has("KeyWord Characters Length: 255 Characters"));
  a.Page(head + std::string(249, 'q') + "\"></head><body>text</body></html>");
  EXPECT_TRUE(
      a.Has("KeyWord Characters Length: 256 Characters *** WARNING *** KeyWORD total length exceed "
            "256 Characters"));
}

TEST(Meta_Tag_KeyWord_Scan, TitleLinesTakeTheWidthOfTheBodyLines) {
  Analyser a;
  a.s.DecodeIncludeTitleWithBody = 0;
  const std::string keywords = "<meta name=\"keywords\" content=\"ab, zz\">";
  a.Page("<html><head><title>ab</title>" + keywords +
         "</head><body>ab ab ab ab ab ab ab ab ab ab</body></html>");
  // " 1 - ab" is padded to the width of " 10 - ab".
  EXPECT_NE(a.s.Form.ReportTextBox.find(std::string(33, ' ') + " 1 - ab \r\n"), std::string::npos);

  // Low-match removal moves the keywords but not their title counts: zz's title match is
  // shown against ab.
  a.s.Form.KeyWords_MinKeyWordMatches_Option = 1;
  a.s.Form.KeyWords_MinKeyWordMatches_DropDown.Text = " 1 Match";
  a.Page(
      "<html><head><title>zz</title><meta name=\"keywords\" content=\"zz, ab\"></head>"
      "<body>ab ab</body></html>");
  EXPECT_TRUE(a.Has("Title Matches: 1"));
  EXPECT_NE(a.s.Form.ReportTextBox.find("\r\n" + std::string(34, ' ') + " 1 - ab\r\n"),
            std::string::npos);
  EXPECT_EQ(a.s.KeywordCount, 1);

  // A title line longer than that width ends the analysis.
  a.s.Form.KeyWords_MinKeyWordMatches_Option = 0;
  a.s.Form.ReportTextBox = "previous";
  try {
    a.Page("<html><head><title>ab ab ab ab ab ab ab ab ab ab</title>" + keywords +
           "</head><body>ab ab</body></html>");
    FAIL() << "a negative pad must end the analysis";
  } catch (const RunTimeError& e) {
    EXPECT_EQ(e.Code(), RunTimeError::kInvalidProcedureCall);
  }
  EXPECT_EQ(a.platform.busyDepth, 0);
  EXPECT_EQ(a.s.Form.ReportTextBox, "previous");
}

TEST(Meta_Tag_KeyWord_Scan, RunTimeErrorsEndOneAnalysisOnly) {
  Analyser a;
  std::string often;
  for (int i = 0; i < 1001; ++i)
    often += "widget ";
  EXPECT_THROW(a.Page("<html><body>" + often + "</body></html>"), RunTimeError);

  std::string many = "k0";
  for (int i = 1; i < 1002; ++i)
    many += ",k" + std::to_string(i);
  try {
    a.Page("<html><head><meta name=\"keywords\" content=\"" + many + "\"></head></html>");
    FAIL() << "1002 keywords must overflow the split list";
  } catch (const RunTimeError& e) {
    EXPECT_EQ(e.Code(), RunTimeError::kSubscriptOutOfRange);
  }
  EXPECT_EQ(a.platform.busyDepth, 0);

  a.File("analysis_shoes.html");
  EXPECT_EQ(a.s.Form.ReportTextBox, testing::ReadTestData("analysis_shoes.report"));
}

TEST(Meta_Tag_KeyWord_Scan, LongReportsGrowTheBuffer) {
  Analyser a;
  a.s.ReportExportWordCount = 1;
  std::string body;
  for (int n = 0; n < 2500; ++n) {
    std::string w = "word";
    for (int k = 0, m = n; k < 3; ++k, m /= 26)
      w += static_cast<char>('a' + m % 26);
    body += w + " ";
  }
  a.Page("<html><body>" + body + "</body></html>");
  const std::string& report = a.s.Form.ReportTextBox;
  // 2500 word lines of 31 spaces, " 1 - wordxxx" and CR LF: 112500 characters.
  EXPECT_GT(report.size(), 112500u);
  EXPECT_LT(report.size(), 125000u);
  EXPECT_EQ(a.s.ReportBufferSize, 125000);
  EXPECT_EQ(static_cast<int32_t>(report.size()), a.s.ReportWritePos);
  const std::string first = "\r\n" + std::string(31, ' ') + " 1 - worddsd\r\n";  // the last seen
  const std::string last = "\r\n" + std::string(31, ' ') + " 1 - wordaaa\r\n";
  ASSERT_NE(report.find(first), std::string::npos);
  EXPECT_EQ(report.find(last) - report.find(first), 2499u * 45u);
  EXPECT_EQ(report.substr(report.size() - 91),
            "Process Done\r\n*=" + std::string(70, '-') + "=*\r\n ");
}

}  // namespace
}  // namespace zentrel::analysis

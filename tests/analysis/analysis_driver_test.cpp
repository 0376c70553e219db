#include "analysis/analysis_driver.h"

#include "analysis/page_report.h"
#include "commands/view_body_report.h"
#include "started_program.h"

namespace zentrel::analysis {
namespace {

using Analyser = testing::Started;

std::string KeywordPage(const std::string& keywords) {
  return "<html><head><meta name=\"keywords\" content=\"" + keywords +
         "\"></head><body>text</body></html>";
}

TEST(Meta_Tag_KeyWord_Scan, WholeReportsMatchTheHandCheckedFiles) {
  Analyser a;
  a.File("analysis_shoes.html");
  EXPECT_EQ(a.s.Form.ReportTextBox, testing::ReadTestData("analysis_shoes.report"));
  EXPECT_EQ(a.s.Form.ScanKeyWords_KeyWordMatches_TextBox,
            " 7 - shoes\r\n 3 - red shoes\r\n 2 - boots\r\n 0 - sandals\r\n ");
  EXPECT_EQ(a.s.Form.ScanKeyWords_KeyWordDensity_TextBox,
            " 29.1% - shoes\r\n 12.5% - red shoes\r\n 8.33% - boots\r\n 0.00% - sandals\r\n");
  EXPECT_EQ(a.s.Form.MetaTag_TextBox[3], "shoes, red shoes, boots, sandals");
  commands::ViewBody_Show(a.s);
  EXPECT_EQ(a.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox.substr(0, 12), "Red, Shoes, ");

  a.File("analysis_widgets.html");  // duplicates reported and removed
  EXPECT_EQ(a.s.Form.ReportTextBox, testing::ReadTestData("analysis_widgets_defaults.report"));
  // The other settings' golden report is the command line's.
}

TEST(Meta_Tag_KeyWord_Scan, KeywordCountAndLengthWarningsAtTheirBoundaries) {
  Analyser a;
  a.Page("<html><body>Nothing to see here</body></html>");
  EXPECT_TRUE(a.Has("Number of KeyWords: 0 *** WARNING *** Document Has No Keywords"));
  EXPECT_FALSE(a.Has("-= KeyWord Density =-"));
  EXPECT_EQ(a.s.Form.ScanKeyWords_KeyWordMatches_TextBox, " ");

  std::string twenty = "k0";
  for (int i = 1; i < 20; ++i)
    twenty += ", k" + std::to_string(i);
  // One keyword with no match: K = length(" 0 - " + keyword) + 2.
  const std::pair<std::string, std::string> cases[] = {
      {twenty, "Number of KeyWords: 20"},
      {twenty + ", k20", "Number of KeyWords: 21 *** WARNING *** Document Has OVER 20 Keywords"},
      {std::string(248, 'q'), "KeyWord Characters Length: 255 Characters"},
      {std::string(249, 'q'),
       "KeyWord Characters Length: 256 Characters *** WARNING *** KeyWORD total length exceed "
       "256 Characters"},
  };
  for (const auto& [keywords, line] : cases) {
    a.Page(KeywordPage(keywords));
    EXPECT_TRUE(a.Has(line)) << line;
  }
}

TEST(Meta_Tag_KeyWord_Scan, TitleLinesTakeTheWidthOfTheBodyLines) {
  Analyser a;
  a.s.DecodeIncludeTitleWithBody = 0;
  const std::string keywords = "<meta name=\"keywords\" content=\"ab, zz\">";
  a.Page("<html><head><title>ab</title>" + keywords +
         "</head><body>ab ab ab ab ab ab ab ab ab ab</body></html>");
  // " 1 - ab" is padded to the width of " 10 - ab".
  EXPECT_TRUE(a.Has(std::string(33, ' ') + " 1 - ab "));

  // Low-match removal moves the keywords but not their title counts: zz's title match is
  // shown against ab.
  a.s.Form.KeyWords_MinKeyWordMatches_Option = 1;
  a.s.Form.KeyWords_MinKeyWordMatches_DropDown.Text = " 1 Match";
  a.Page(
      "<html><head><title>zz</title><meta name=\"keywords\" content=\"zz, ab\"></head>"
      "<body>ab ab</body></html>");
  EXPECT_TRUE(a.Has("\r\n" + std::string(34, ' ') + " 1 - ab"));

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
  EXPECT_EQ(a.s.Form.ReportTextBox, "previous");
}

TEST(Meta_Tag_KeyWord_Scan, RunTimeErrorsEndOneAnalysisOnly) {
  Analyser a;
  std::string many = "k0";
  for (int i = 1; i < 1002; ++i)
    many += ",k" + std::to_string(i);
  // The boxes stand as far as the analysis got: the raw body is decoded before the keywords
  // overrun their split, the matches and the report would come after it.
  a.s.ViewBodyShowRaw = 1;
  a.s.Form.ScanKeyWords_DocumentWordCount_TextBox = "before";
  a.s.Form.ScanKeyWords_KeyWordMatches_TextBox = "before";
  a.s.Form.ReportTextBox = "before";
  EXPECT_THROW(a.Page(KeywordPage(many)), RunTimeError);
  EXPECT_EQ(a.platform.busyDepth, 0);
  EXPECT_EQ(a.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox, "text ");
  EXPECT_EQ(a.s.Form.ScanKeyWords_DocumentWordCount_TextBox, "");
  EXPECT_EQ(a.s.Form.ScanKeyWords_KeyWordMatches_TextBox, "before");
  EXPECT_EQ(a.s.Form.ReportTextBox, "before");
  a.s.ViewBodyShowRaw = 0;
  a.File("analysis_shoes.html");
  EXPECT_EQ(a.s.Form.ReportTextBox, testing::ReadTestData("analysis_shoes.report"));
  // "View Body" joins its words only when shown, and then still shows those of the last
  // analysis that got that far, not those of one that an error ended later.
  EXPECT_THROW(a.Page(KeywordPage(many)), RunTimeError);
  commands::ViewBody_Show(a.s);
  EXPECT_EQ(a.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox.substr(0, 12), "Red, Shoes, ");
}

// Odd and even lengths are centred in the report golden files; these are the edges.
TEST(Report_Center, HalvesGoToTheEvenNeighbour) {
  const std::pair<size_t, int32_t> pads[] = {{0, 37}, {75, 0}, {77, 0}};
  for (const auto& [length, pad] : pads)
    EXPECT_EQ(Report_Center_Pad(length), pad) << length;
  testing::Started w;
  Reset_Report(w.s);
  Report_Center(w.s, std::string(80, 'x'));
  Report_Center(w.s, "abc");
  EXPECT_EQ(Report_Text(w.s), std::string(80, 'x') + "\r\n" + std::string(36, ' ') + "abc\r\n ");
}

// Lines past the buffer's end, one longer than a growth step and one longer than all before
// it, land whole.
TEST(Report, GrowsTheBufferAndLosesNothing) {
  testing::Started w;
  Reset_Report(w.s);
  std::string expected;
  for (const std::string& line : {std::string(98, 'r'), std::string(99000, 'L'),
                                  std::string(60000, 'M'), std::string(200000, 'H')}) {
    Report(w.s, line);
    expected += line + "\r\n";
  }
  EXPECT_EQ(Report_Text(w.s), expected + " ");
}

}  // namespace
}  // namespace zentrel::analysis

// Saving the report and the body text, and the additional keywords box.

#include "commands/view_body_report.h"

#include <cerrno>

#include "analysis_fixture.h"
#include "commands/control_table.h"

namespace zentrel::commands {
namespace {

using testing::ReadFile;

// A write that fails only at the last step, after the temporary file was made.
class FailingRename : public file_io::FileSystem {
 public:
  int Rename(const std::string&, const std::string&) override {
    errno = EACCES;
    return -1;
  }
};

struct Export : testing::Analysis {
  std::string report = folder.File("report.txt");
};

TEST(PageReport_SAVEAS_Click, WritesTheReportAsItStands) {
  Export e;
  PageReport_SAVEAS_Click(e.s);  // no report yet: no dialog at all
  e.s.Form.ReportTextBox = "Report\r\n ";
  e.platform.AnswerSave(e.report);
  ASSERT_TRUE(commands::Dispatch(e.s, "PageReport_SAVEAS"));
  EXPECT_EQ(ReadFile(e.report), "Report\r\n ");
  ASSERT_EQ(e.platform.dialogs.size(), 1u);
  EXPECT_EQ(e.platform.dialogs[0].Filter, "(*.txt)|*.txt|");
  EXPECT_EQ(e.platform.dialogs[0].DefaultExt, ".txt");

  e.platform.CancelDialog();
  e.s.Form.ReportTextBox = "changed";
  PageReport_SAVEAS_Click(e.s);
  EXPECT_EQ(ReadFile(e.report), "Report\r\n ");
}

TEST(ViewBody_SaveAs_Click, AnEmptyBodyGivesAnEmptyFile) {
  Export e;
  testing::WriteFile(e.report, "old");
  e.platform.AnswerSave(e.report);
  ASSERT_TRUE(commands::Dispatch(e.s, "ViewBody_SaveAs"));
  EXPECT_EQ(ReadFile(e.report), "");
  e.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox = "garden tools";
  e.platform.AnswerSave(e.report);
  ViewBody_SaveAs_Click(e.s);
  EXPECT_EQ(ReadFile(e.report), "garden tools");
}

TEST(Do_Save_REPORT, AFailedWriteIsShownAndLeavesTheOldFile) {
  Export e;
  FailingRename failing;
  AppState s(e.platform, failing);
  testing::WriteFile(e.report, "old report");
  s.Form.ReportTextBox = "new report";
  e.platform.AnswerSave(e.report);
  Do_Save_REPORT(s);
  ASSERT_EQ(e.platform.messages.size(), 1u);
  EXPECT_NE(e.platform.messages[0].find(e.report), std::string::npos);
  EXPECT_EQ(ReadFile(e.report), "old report");

  // The body text goes the same way.
  const std::string body = e.folder.File("body.txt");
  testing::WriteFile(body, "old body");
  s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox = "new body";
  e.platform.AnswerSave(body);
  ViewBody_SaveAs_Click(s);
  ASSERT_EQ(e.platform.messages.size(), 2u);
  EXPECT_NE(e.platform.messages[1].find(body), std::string::npos);
  EXPECT_EQ(ReadFile(body), "old body");
}

TEST(Users_METATAGS_TextBox, TheBoxIsTheUsersKeywordsAndClearEmptiesBoth) {
  Export e;
  Set_Users_METATAGS_TextBox(e.s, "rake, hoe,");
  EXPECT_EQ(e.s.UsersKeywordsText, "rake, hoe,");
  ASSERT_TRUE(commands::Dispatch(e.s, "Users_METATAGS_Clear_Command"));
  EXPECT_EQ(e.s.Form.Users_METATAGS_TextBox, "");
  EXPECT_EQ(e.s.UsersKeywordsText, "");
}

}  // namespace
}  // namespace zentrel::commands

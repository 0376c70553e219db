// Saving the report and the body text, and the additional keywords box.

#include "commands/view_body_report.h"

#include "full_disk.h"
#include "started_program.h"

namespace zentrel::commands {
namespace {

using testing::ReadFile;

TEST(PageReport_SAVEAS_Click, WritesTheReportAsItStands) {
  testing::Started t;
  const std::string report = t.folder.File("report.txt");
  PageReport_SAVEAS_Click(t.s);  // no report yet: no dialog at all
  t.s.Form.ReportTextBox = "Report\r\n ";
  t.platform.AnswerSave(report);
  t.Click("PageReport_SAVEAS");
  EXPECT_EQ(ReadFile(report), "Report\r\n ");
  ASSERT_EQ(t.platform.dialogs.size(), 1u);
  EXPECT_EQ(t.platform.dialogs[0].Filter, "(*.txt)|*.txt|");
  EXPECT_EQ(t.platform.dialogs[0].DefaultExt, ".txt");

  t.platform.CancelDialog();
  t.s.Form.ReportTextBox = "changed";
  PageReport_SAVEAS_Click(t.s);
  EXPECT_EQ(ReadFile(report), "Report\r\n ");
}

TEST(ViewBody_SaveAs_Click, AnEmptyBodyGivesAnEmptyFile) {
  testing::Started t;
  const std::string body = t.Write("body.txt", "old");
  t.platform.AnswerSave(body);
  t.Click("ViewBody_SaveAs");
  EXPECT_EQ(ReadFile(body), "");
  t.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox = "garden tools";
  t.platform.AnswerSave(body);
  t.Click("ViewBody_SaveAs");
  EXPECT_EQ(ReadFile(body), "garden tools");
}

// Both saves show a failed write in a message naming the file.
TEST(Do_Save_REPORT, AFailedWriteIsShown) {
  testing::FullDisk disk;
  testing::Started t(disk);
  t.s.Form.ReportTextBox = "new report";
  t.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox = "new body";
  const std::string report = t.folder.File("report.txt"), body = t.folder.File("body.txt");
  t.platform.AnswerSave(report);
  Do_Save_REPORT(t.s);
  t.platform.AnswerSave(body);
  ViewBody_SaveAs_Click(t.s);
  ASSERT_EQ(t.platform.messages.size(), 2u);
  EXPECT_NE(t.platform.messages[0].find(report), std::string::npos);
  EXPECT_NE(t.platform.messages[1].find(body), std::string::npos);
}

TEST(Users_METATAGS_TextBox, TheBoxIsTheUsersKeywordsAndClearEmptiesBoth) {
  testing::Started t;
  Set_Users_METATAGS_TextBox(t.s, "rake, hoe,");
  EXPECT_EQ(t.s.UsersKeywordsText, "rake, hoe,");
  t.Click("Users_METATAGS_Clear_Command");
  EXPECT_EQ(t.s.Form.Users_METATAGS_TextBox, "");
  EXPECT_EQ(t.s.UsersKeywordsText, "");
}

}  // namespace
}  // namespace zentrel::commands

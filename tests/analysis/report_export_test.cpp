// Saving the report and the body text, the additional keywords box, two option boxes.

#include "analysis/report_export.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "app/app_state.h"
#include "app/control_table.h"
#include "fake_platform.h"
#include "test_files.h"

namespace zentrel::analysis {
namespace {

using testing::FakePlatform;
using testing::ReadFile;
using testing::TempFolder;

size_t Files_In(const std::filesystem::path& folder) {
  size_t n = 0;
  for (auto it = std::filesystem::directory_iterator(folder);
       it != std::filesystem::directory_iterator(); ++it)
    ++n;
  return n;
}

TEST(PageReport_SAVEAS_Click, WritesTheReportAsItStands) {
  TempFolder folder;
  FakePlatform platform;
  AppState s(platform);
  PageReport_SAVEAS_Click(s);  // no report yet: no dialog at all
  EXPECT_TRUE(platform.dialogs.empty());

  s.Form.ReportTextBox = "Report\r\n=====\r\n ";
  platform.AnswerSave(folder.File("report.txt"));
  ASSERT_TRUE(app::Dispatch(s, "PageReport_SAVEAS"));
  EXPECT_EQ(ReadFile(folder.File("report.txt")), "Report\r\n=====\r\n ");
  ASSERT_EQ(platform.dialogs.size(), 1u);
  EXPECT_EQ(platform.dialogs[0].Filter, "(*.txt)|*.txt|");
  EXPECT_EQ(platform.dialogs[0].FilterIndex, 1);
  EXPECT_EQ(platform.dialogs[0].DefaultExt, ".txt");

  platform.CancelDialog();
  s.Form.ReportTextBox = "changed";
  ASSERT_TRUE(app::Dispatch(s, "PageReport_SAVEAS"));
  EXPECT_EQ(ReadFile(folder.File("report.txt")), "Report\r\n=====\r\n ");
  EXPECT_TRUE(platform.messages.empty());
}

TEST(ViewBody_SaveAs_Click, AnEmptyBodyGivesAnEmptyFile) {
  TempFolder folder;
  FakePlatform platform;
  AppState s(platform);
  platform.AnswerSave(folder.File("body.txt"));
  ASSERT_TRUE(app::Dispatch(s, "ViewBody_SaveAs"));
  ASSERT_TRUE(std::filesystem::exists(folder.File("body.txt")));
  EXPECT_EQ(ReadFile(folder.File("body.txt")), "");

  s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox = "garden tools";
  platform.AnswerSave(folder.File("body.txt"));
  ViewBody_SaveAs_Click(s);
  EXPECT_EQ(ReadFile(folder.File("body.txt")), "garden tools");
}

// A folder the program may not write into, whoever runs the tests.
class ReadOnlyFolder : public file_io::FileSystem {
 public:
  int MakeTemp(std::string&) override {
    errno = EACCES;
    return -1;
  }
};

// A write that fails only at the last step, after the temporary file was made.
class FailingRename : public file_io::FileSystem {
 public:
  int Rename(const std::string&, const std::string&) override {
    errno = EACCES;
    return -1;
  }
};

TEST(Do_Save_REPORT, AFailedWriteIsShownAndLeavesNothingBehind) {
  TempFolder folder;
  FakePlatform platform;
  ReadOnlyFolder readOnly;
  AppState s(platform, readOnly);
  s.Form.ReportTextBox = "Report";
  platform.AnswerSave(folder.File("report.txt"));
  PageReport_SAVEAS_Click(s);
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_NE(platform.messages[0].find(folder.File("report.txt")), std::string::npos);
  EXPECT_EQ(Files_In(folder.path()), 0u);

  testing::WriteFile(folder.File("report.txt"), "old report");
  FailingRename failing;
  AppState s2(platform, failing);
  s2.Form.ReportTextBox = "new report";
  platform.AnswerSave(folder.File("report.txt"));
  Do_Save_REPORT(s2);
  EXPECT_EQ(platform.messages.size(), 2u);
  EXPECT_EQ(ReadFile(folder.File("report.txt")), "old report");
  EXPECT_EQ(Files_In(folder.path()), 1u);

  // The body text goes the same way.
  testing::WriteFile(folder.File("body.txt"), "old body");
  s2.Form.ScanKeyWords_StrippedHTMLDocument_TextBox = "new body";
  platform.AnswerSave(folder.File("body.txt"));
  ViewBody_SaveAs_Click(s2);
  ASSERT_EQ(platform.messages.size(), 3u);
  EXPECT_NE(platform.messages[2].find(folder.File("body.txt")), std::string::npos);
  EXPECT_EQ(ReadFile(folder.File("body.txt")), "old body");
  EXPECT_EQ(Files_In(folder.path()), 2u);
}

TEST(Users_METATAGS_TextBox, TheBoxIsTheUsersKeywordsAndClearEmptiesBoth) {
  FakePlatform platform;
  AppState s(platform);
  Set_Users_METATAGS_TextBox(s, "rake, hoe,");
  EXPECT_EQ(s.UsersKeywordsText, "rake, hoe,");
  ASSERT_TRUE(app::Dispatch(s, "Users_METATAGS_Clear_Command"));
  EXPECT_EQ(s.Form.Users_METATAGS_TextBox, "");
  EXPECT_EQ(s.UsersKeywordsText, "");
}

TEST(ReportOptions, CheckBoxesSetTheirSettingsOnly) {
  FakePlatform platform;
  AppState s(platform);
  s.Form.PageReport_Export_WordCount_CheckBox = 1;
  ASSERT_TRUE(app::Dispatch(s, "PageReport_Export_WordCount_CheckBox"));
  EXPECT_EQ(s.ReportExportWordCount, 1);
  EXPECT_EQ(s.ViewBodyShowRaw, 0);
  s.Form.ViewBody_ShowRAWBODY_CHeckBox = 1;
  ASSERT_TRUE(app::Dispatch(s, "ViewBody_ShowRAWBODY_CHeckBox"));
  EXPECT_EQ(s.ViewBodyShowRaw, 1);
  s.Form.PageReport_Export_WordCount_CheckBox = 0;
  PageReport_Export_WordCount_CheckBox_Click(s);
  EXPECT_EQ(s.ReportExportWordCount, 0);
  EXPECT_EQ(s.ViewBodyShowRaw, 1);
  EXPECT_TRUE(s.Form.ReportTextBox.empty());  // no analysis ran
}

}  // namespace
}  // namespace zentrel::analysis

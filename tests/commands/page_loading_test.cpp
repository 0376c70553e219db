// Opening pages, the recent-file menu and "&New", driven through the Form model.

#include "commands/page_loading.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "commands/control_table.h"
#include "commands/scan_keywords.h"
#include "commands/startup.h"
#include "fake_platform.h"
#include "shell_program_folder.h"
#include "state/app_state.h"
#include "test_files.h"

namespace zentrel::commands {
namespace {

struct Started {
  testing::ShellProgramFolder folder;
  testing::FakePlatform platform{folder.Path()};
  AppState s{platform};
  std::string page = testing::ReadTestData("shell_page.html");

  Started() { Form_Load(s); }
  std::string Page(const std::string& name) {
    testing::WriteFile(folder.File(name), page);
    return folder.File(name);
  }
  void Load(const std::string& path) {
    platform.AnswerOpen(path);
    ASSERT_TRUE(Dispatch(s, "mnu_file_Load"));
  }
};

TEST(Do_Load_File, LoadsTheChosenPageAndPutsItFirstInTheMenu) {
  Started t;
  std::string path = t.Page("first.html");
  t.s.DefaultFileTypeIndex = 3;
  t.s.DefaultFileExtension = ".txt";
  t.platform.AnswerOpen(path, 1, ".html");
  Command1_Click(t.s);
  const state::FileDialog& shown = t.platform.dialogs.at(0);
  EXPECT_EQ(shown.Filter, "(*.html)|*.html|(*.htm)|*.htm|(*.txt)|*.txt|(*.*)|*.*|");
  EXPECT_EQ(shown.FileName, "");
  EXPECT_EQ(shown.FilterIndex, 3);
  EXPECT_EQ(shown.DefaultExt, ".txt");
  EXPECT_EQ(t.s.DefaultFileTypeIndex, 1);  // the dialog's choice is kept
  EXPECT_EQ(t.s.DefaultFileExtension, ".html");

  EXPECT_EQ(t.s.DocumentText, t.page);
  EXPECT_EQ(t.s.Form.Caption, path + "   Zentrel V1.62");
  EXPECT_FALSE(t.s.Form.ReportTextBox.empty());  // the analysis ran
  EXPECT_TRUE(t.s.Form.mnu_file_QuickLoadSlash.Visible);
  EXPECT_EQ(t.s.Form.mnu_file_QuickLoadFile[0].Caption, Clip_FileName(path, " 1:", 32));
  EXPECT_FALSE(t.s.Form.mnu_file_QuickLoadFile[1].Visible);

  t.platform.CancelDialog();  // the next dialog starts from the page now loaded
  Command1_Click(t.s);
  EXPECT_EQ(t.platform.dialogs.at(1).FileName, path);
}

TEST(Load_File_QuickLoadMenu, ReopensAnEntryWithoutMovingIt) {
  Started t;
  std::string a = t.Page("a.html"), b = t.Page("b.html");
  t.Load(a);
  t.Load(b);
  ASSERT_TRUE(Dispatch(t.s, "mnu_file_QuickLoadFile2"));
  EXPECT_EQ(t.s.CurrentFileName, a);
  EXPECT_EQ(t.s.RecentFileCount, 2);
  EXPECT_EQ(t.s.RecentFiles[0], b);

  // A vanished page is reported, and the page in hand stays current under its name.
  ASSERT_TRUE(Dispatch(t.s, "mnu_file_QuickLoadFile1"));
  const int32_t length = t.s.DocumentLength;
  std::filesystem::remove(a);
  ASSERT_TRUE(Dispatch(t.s, "mnu_file_QuickLoadFile2"));
  ASSERT_EQ(t.platform.messages.size(), 1u);
  EXPECT_NE(t.platform.messages[0].find(a), std::string::npos);
  EXPECT_EQ(t.s.DocumentLength, length);
  EXPECT_EQ(t.s.CurrentFileName, b);

  ASSERT_TRUE(Dispatch(t.s, "mnu_file_QuickLoadFile5"));  // beyond the list: nothing
  EXPECT_EQ(t.platform.messages.size(), 1u);
}

TEST(Do_Load_File, CancelOrAMissingFileChangesNothing) {
  Started t;
  std::string a = t.Page("a.html");
  t.Load(a);
  const std::string caption = t.s.Form.Caption;
  t.platform.CancelDialog();
  Command1_Click(t.s);
  t.Load(t.folder.File("missing.html"));
  t.Load("");
  EXPECT_EQ(t.s.CurrentFileName, a);
  EXPECT_EQ(t.s.DocumentText, t.page);
  EXPECT_EQ(t.s.Form.Caption, caption);
  EXPECT_EQ(t.s.RecentFileCount, 1);
  EXPECT_TRUE(t.platform.messages.empty());
}

TEST(Do_Load_File, APathThatCannotBeAPageIsReportedAndThePageInHandStays) {
  Started t;
  std::string a = t.Page("a.html"), b = t.Page("b.html");
  t.Load(a);
  t.Load(b);
  const std::string report = t.s.Form.ReportTextBox;
  // a becomes a FIFO with no writer: opened as before, the load would wait for ever.
  std::filesystem::remove(a);
  ASSERT_EQ(::mkfifo(a.c_str(), 0644), 0);
  ASSERT_TRUE(Dispatch(t.s, "mnu_file_QuickLoadFile2"));
  t.platform.AnswerOpen(a);
  Command1_Click(t.s);
  ASSERT_EQ(t.platform.messages.size(), 2u);
  EXPECT_NE(t.platform.messages[1].find("\"" + a + "\""), std::string::npos);
  EXPECT_EQ(t.s.CurrentFileName, b);
  EXPECT_EQ(t.s.DocumentLength, static_cast<int32_t>(t.page.size()));
  EXPECT_EQ(t.s.Form.ReportTextBox, report);
  EXPECT_EQ(t.s.RecentFileCount, 2);
}

TEST(Clear_Document, NewEmptiesThePageAndTheNextDialogStartsWithNoName) {
  Started t;
  t.Load(t.Page("a.html"));
  ASSERT_TRUE(Dispatch(t.s, "Mnu_File_new"));
  EXPECT_EQ(t.s.DocumentLength, 0);
  EXPECT_EQ(t.s.Form.Html_Document_Editor, "");
  EXPECT_EQ(t.s.Form.ScanKeyWords_KeyWordMatches_TextBox, "");
  EXPECT_EQ(t.s.Form.MetaTag_TextBox[0], "");
  EXPECT_EQ(t.s.Form.Caption, "   Zentrel V1.62");
  EXPECT_EQ(t.s.RecentFileCount, 1);  // the menu keeps its entries
  t.platform.CancelDialog();
  Command1_Click(t.s);
  EXPECT_EQ(t.platform.dialogs.back().FileName, "");
}

TEST(Clip_FileName, KeepsTheHeadAndTheTail) {
  struct Case {
    std::string path;
    int16_t limit;
    std::string caption;
  };
  const Case cases[] = {
      {"/home/user/pages/site/www/index_040.html", 32, " 1: /h/...es/site/www/index_040.html"},
      {"/a/b.html", 13, " 1: /a/b.html"},  // exactly the limit is left whole
      {"/a/bc.html", 13, " 1: /a/...bc.html"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(Clip_FileName(c.path, " 1:", c.limit), c.caption);
}

}  // namespace
}  // namespace zentrel::commands

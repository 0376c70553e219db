// Opening pages, the recent-file menu and "&New", driven through the Form model.

#include "app/page_loading.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/app_state.h"
#include "app/control_table.h"
#include "app/startup.h"
#include "decode/meta_tag_table.h"
#include "fake_platform.h"
#include "shell_program_folder.h"
#include "test_files.h"

namespace zentrel::app {
namespace {

using testing::FakePlatform;
using testing::ShellProgramFolder;

struct Started {
  ShellProgramFolder folder;
  FakePlatform platform{folder.Path()};
  AppState s{platform};
  std::string page = testing::ReadTestData("shell_page.html");

  Started() { Form_Load(s); }
  std::string Page(const std::string& name) {
    std::string path = folder.File(name);
    testing::WriteFile(path, page);
    return path;
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

  ASSERT_EQ(t.platform.dialogs.size(), 1u);
  const FileDialog& shown = t.platform.dialogs[0];
  EXPECT_EQ(shown.Filter, "(*.html)|*.html|(*.htm)|*.htm|(*.txt)|*.txt|(*.*)|*.*|");
  EXPECT_EQ(shown.FileName, "");
  EXPECT_EQ(shown.FilterIndex, 3);
  EXPECT_EQ(shown.DefaultExt, ".txt");
  EXPECT_EQ(t.s.DefaultFileTypeIndex, 1);  // the dialog's choice is kept
  EXPECT_EQ(t.s.DefaultFileExtension, ".html");

  EXPECT_EQ(t.s.CurrentFileName, path);
  EXPECT_EQ(t.s.DocumentLength, static_cast<int32_t>(t.page.size()));
  EXPECT_EQ(t.s.DocumentText, t.page);
  EXPECT_EQ(t.s.Form.Caption, path + "   Zentrel V1.62");
  EXPECT_FALSE(t.s.Form.ReportTextBox.empty());  // the analysis ran
  EXPECT_EQ(t.s.RecentFileCount, 1);
  EXPECT_TRUE(t.s.Form.mnu_file_QuickLoadSlash.Visible);
  EXPECT_TRUE(t.s.Form.mnu_file_QuickLoadFile[0].Visible);
  EXPECT_FALSE(t.s.Form.mnu_file_QuickLoadFile[1].Visible);

  // The next dialog starts from the page now loaded.
  t.platform.CancelDialog();
  Command1_Click(t.s);
  EXPECT_EQ(t.platform.dialogs[1].FileName, path);
}

TEST(Do_Load_File, SixPagesLeaveTheFiveNewestAndRepeatsAreListedAgain) {
  Started t;
  std::vector<std::string> paths;
  for (int i = 1; i <= 6; ++i) {
    paths.push_back(t.Page("p" + std::to_string(i) + ".html"));
    t.Load(paths.back());
  }
  ASSERT_EQ(t.s.RecentFileCount, 5);
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(t.s.RecentFiles[i], paths[5 - i]);
    EXPECT_TRUE(t.s.Form.mnu_file_QuickLoadFile[i].Visible);
  }

  t.Load(paths[4]);
  EXPECT_EQ(t.s.RecentFiles[0], paths[4]);
  EXPECT_EQ(t.s.RecentFiles[1], paths[5]);
  EXPECT_EQ(t.s.RecentFiles[2], paths[4]);
}

TEST(Load_File_QuickLoadMenu, ReopensAnEntryWithoutMovingIt) {
  Started t;
  std::string a = t.Page("a.html"), b = t.Page("b.html");
  t.Load(a);
  t.Load(b);
  ASSERT_TRUE(Dispatch(t.s, "mnu_file_QuickLoadFile2"));
  EXPECT_EQ(t.s.CurrentFileName, a);
  EXPECT_EQ(t.s.DocumentText, t.page);
  EXPECT_EQ(t.s.RecentFileCount, 2);
  EXPECT_EQ(t.s.RecentFiles[0], b);
  EXPECT_EQ(t.s.RecentFiles[1], a);

  // A vanished page is reported and leaves an empty document.
  std::filesystem::remove(a);
  ASSERT_TRUE(Dispatch(t.s, "mnu_file_QuickLoadFile2"));
  EXPECT_EQ(t.platform.messages.size(), 1u);
  EXPECT_EQ(t.s.DocumentLength, 0);
  EXPECT_EQ(t.s.RecentFileCount, 2);

  // Entries beyond the list are hidden and do nothing.
  ASSERT_TRUE(Dispatch(t.s, "mnu_file_QuickLoadFile5"));
  EXPECT_EQ(t.platform.messages.size(), 1u);
}

TEST(Do_Load_File, CancelOrAMissingFileChangesNothing) {
  Started t;
  std::string a = t.Page("a.html");
  t.Load(a);
  std::string text = t.s.DocumentText, caption = t.s.Form.Caption;

  t.platform.CancelDialog();
  Command1_Click(t.s);
  t.platform.AnswerOpen(t.folder.File("missing.html"), 3, ".txt");
  Command1_Click(t.s);
  t.platform.AnswerOpen("");
  Command1_Click(t.s);

  EXPECT_EQ(t.s.CurrentFileName, a);
  EXPECT_EQ(t.s.DocumentText, text);
  EXPECT_EQ(t.s.Form.Caption, caption);
  EXPECT_EQ(t.s.RecentFileCount, 1);
  EXPECT_TRUE(t.platform.messages.empty());
}

TEST(Load_File_To_Cache, AReadErrorIsShownAndGivesZero) {
  Started t;
  std::string folderPath = t.folder.File("not_a_page");
  std::filesystem::create_directory(folderPath);
  t.Load(folderPath);
  ASSERT_EQ(t.platform.messages.size(), 1u);
  EXPECT_NE(t.platform.messages[0].find(folderPath), std::string::npos);
  EXPECT_EQ(t.s.DocumentLength, 0);
  EXPECT_TRUE(t.s.Form.ReportTextBox.empty());
}

TEST(Clear_Document, NewEmptiesThePageAndTheNextDialogStartsWithNoName) {
  Started t;
  t.Load(t.Page("a.html"));
  ASSERT_TRUE(Dispatch(t.s, "Mnu_File_new"));
  EXPECT_EQ(t.s.CurrentFileName, "");
  EXPECT_EQ(t.s.DocumentLength, 0);
  EXPECT_EQ(t.s.DocumentText, "");
  EXPECT_EQ(t.s.StrippedText, "");
  EXPECT_EQ(t.s.TitleText, "");
  EXPECT_EQ(t.s.Form.Html_Document_Editor, "");
  EXPECT_EQ(t.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox, "");
  EXPECT_EQ(t.s.Form.ScanKeyWords_DocumentWordCount_TextBox, "");
  EXPECT_EQ(t.s.Form.ScanKeyWords_KeyWordMatches_TextBox, "");
  EXPECT_EQ(t.s.Form.ScanKeyWords_KeyWordDensity_TextBox, "");
  // Every META field is emptied; the keywords field goes on showing the keyword list of the
  // last analysis, which "&New" does not reset.
  const int16_t keywords = decode::Find_MetaTag_Index(t.s, "keywords");
  for (int16_t i = 0; i < kMetaTagFieldCount; ++i) {
    if (i != keywords) {
      EXPECT_EQ(t.s.Form.MetaTag_TextBox[i], "") << i;
    }
  }
  EXPECT_EQ(t.s.Form.Caption, "   Zentrel V1.62");
  EXPECT_EQ(t.s.RecentFileCount, 1);  // the menu keeps its entries

  t.platform.CancelDialog();
  ASSERT_TRUE(Dispatch(t.s, "Command1"));
  EXPECT_EQ(t.platform.dialogs.back().FileName, "");
}

TEST(Show_Quick_Load_File_MNU_Listings, CaptionsAreNumberedAndClipped) {
  FakePlatform platform;
  AppState s(platform);
  s.Form.mnu_file_QuickLoadFile[0] = {"kept", true};
  Show_Quick_Load_File_MNU_Listings(s);  // an empty list leaves the menu alone
  EXPECT_EQ(s.Form.mnu_file_QuickLoadFile[0].Caption, "kept");

  Add_Recent_File(s, "/short.html");
  Add_Recent_File(s, "/home/user/pages/site/www/index_040.html");
  Show_Quick_Load_File_MNU_Listings(s);
  EXPECT_EQ(s.Form.mnu_file_QuickLoadFile[0].Caption, " 1: /h/...es/site/www/index_040.html");
  EXPECT_EQ(s.Form.mnu_file_QuickLoadFile[1].Caption, " 2: /short.html");
  EXPECT_TRUE(s.Form.mnu_file_QuickLoadFile[1].Visible);
  EXPECT_FALSE(s.Form.mnu_file_QuickLoadFile[2].Visible);
  EXPECT_TRUE(s.Form.mnu_file_QuickLoadSlash.Visible);
}

TEST(Clip_FileName, KeepsTheHeadAndTheTail) {
  const std::string path40 = "C:/0123456789012345678901234567890123456";  // 40 characters
  ASSERT_EQ(path40.size(), 40u);
  EXPECT_EQ(Clip_FileName(path40, " 1:", 32), " 1: C:/..." + path40.substr(14));
  EXPECT_EQ(path40.substr(14).size(), 26u);
  // Exactly the limit is left whole.
  EXPECT_EQ(Clip_FileName("/a/b.html", " 1:", 13), " 1: /a/b.html");
  EXPECT_EQ(Clip_FileName("/a/bc.html", " 1:", 13), " 1: /a/...bc.html");
}

}  // namespace
}  // namespace zentrel::app

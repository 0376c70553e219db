// Opening pages, the recent-file menu and "&New", driven through the Form model.

#include "commands/page_loading.h"

#include <sys/stat.h>

#include <filesystem>

#include "started_program.h"

namespace zentrel::commands {
namespace {

struct Loads : testing::Started {
  std::string page = "<html><head><title>T</title></head><body>words</body></html>";
  std::string Page(const std::string& name) { return Write(name, page); }
};

TEST(Do_Load_File, LoadsTheChosenPageAndPutsItFirstInTheMenu) {
  Loads t;
  std::string path = t.Page("first.html");
  t.s.DefaultFileTypeIndex = 3;
  t.s.DefaultFileExtension = ".txt";
  t.platform.AnswerOpen(path, 1, ".html");
  t.Click("Command1");
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
  t.Click("mnu_file_Load");
  EXPECT_EQ(t.platform.dialogs.at(1).FileName, path);
}

TEST(Load_File_QuickLoadMenu, ReopensAnEntryWithoutMovingIt) {
  Loads t;
  std::string a = t.Page("a.html"), b = t.Page("b.html");
  t.Load(a);
  t.Load(b);
  t.Click("mnu_file_QuickLoadFile2");
  EXPECT_EQ(t.s.CurrentFileName, a);
  EXPECT_EQ(t.s.RecentFileCount, 2);
  EXPECT_EQ(t.s.RecentFiles[0], b);

  // A vanished page is reported and leaves an empty document.
  std::filesystem::remove(a);
  t.Click("mnu_file_QuickLoadFile2");
  ASSERT_EQ(t.platform.messages.size(), 1u);
  EXPECT_NE(t.platform.messages[0].find(a), std::string::npos);
  EXPECT_EQ(t.s.DocumentLength, 0);

  t.Click("mnu_file_QuickLoadFile5");  // beyond the list: nothing
  EXPECT_EQ(t.platform.messages.size(), 1u);
}

// Cancel, a missing file or no name change nothing; a path that cannot be a page (a FIFO with
// no writer would block for ever) is reported and the page in hand stays.
TEST(Do_Load_File, WhatIsNoPageLeavesThePageInHand) {
  Loads t;
  std::string a = t.Page("a.html"), b = t.Page("b.html");
  t.Load(a);
  t.Load(b);
  const std::string report = t.s.Form.ReportTextBox, caption = t.s.Form.Caption;
  t.platform.CancelDialog();
  t.Click("Command1");
  t.Load(t.folder.File("missing.html"));
  t.Load("");
  EXPECT_TRUE(t.platform.messages.empty());
  std::filesystem::remove(a);
  ASSERT_EQ(::mkfifo(a.c_str(), 0644), 0);
  t.Click("mnu_file_QuickLoadFile2");
  t.Load(a);
  ASSERT_EQ(t.platform.messages.size(), 2u);
  EXPECT_NE(t.platform.messages[1].find("\"" + a + "\""), std::string::npos);
  EXPECT_EQ(t.s.CurrentFileName, b);
  EXPECT_EQ(t.s.DocumentText, t.page);
  EXPECT_EQ(t.s.Form.ReportTextBox, report);
  EXPECT_EQ(t.s.Form.Caption, caption);
  EXPECT_EQ(t.s.RecentFileCount, 2);
}

TEST(Clear_Document, NewEmptiesThePageAndTheNextDialogStartsWithNoName) {
  Loads t;
  t.Load(t.Page("a.html"));
  t.Click("Mnu_File_new");
  EXPECT_EQ(t.s.DocumentLength, 0);
  EXPECT_EQ(t.s.Form.Html_Document_Editor, "");
  EXPECT_EQ(t.s.Form.ScanKeyWords_KeyWordMatches_TextBox, "");
  EXPECT_EQ(t.s.Form.MetaTag_TextBox[0], "");
  EXPECT_EQ(t.s.Form.Caption, "   Zentrel V1.62");
  EXPECT_EQ(t.s.RecentFileCount, 1);  // the menu keeps its entries
  t.platform.CancelDialog();
  t.Click("Command1");
  EXPECT_EQ(t.platform.dialogs.back().FileName, "");
}

TEST(Clip_FileName, KeepsTheHeadAndTheTail) {
  EXPECT_EQ(Clip_FileName("/home/user/pages/site/www/index_040.html", " 1:", 32),
            " 1: /h/...es/site/www/index_040.html");
  EXPECT_EQ(Clip_FileName("/a/b.html", " 1:", 13), " 1: /a/b.html");  // exactly the limit
  EXPECT_EQ(Clip_FileName("/a/bc.html", " 1:", 13), " 1: /a/...bc.html");
}

}  // namespace
}  // namespace zentrel::commands

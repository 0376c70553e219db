// Opening, saving and exporting pages, the recent-file menu and "&New", through the Form model.

#include "commands/page_loading.h"

#include <sys/stat.h>
#include <filesystem>

#include "../metatags/encoder_test_page.h"
#include "commands/edit_meta_tags.h"
#include "commands/file_menu.h"
#include "commands/page_saving.h"
#include "commands/view_body_report.h"
#include "full_disk.h"
#include "started_program.h"

namespace zentrel::commands {
namespace {

struct Loads : testing::Started {
  std::string page = "<html><head><title>T</title></head><body>words</body></html>";
  std::string Page(const std::string& name) { return Write(name, page); }
};

TEST(Do_Load_File, LoadsTheChosenPageAndNewEmptiesIt) {
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

  // "&New" empties the page and its boxes; the menu keeps its entries.
  t.Click("Mnu_File_new");
  EXPECT_EQ(t.s.DocumentLength, 0);
  EXPECT_EQ(t.s.Form.Html_Document_Editor + t.s.Form.ScanKeyWords_KeyWordMatches_TextBox +
                t.s.Form.ScanKeyWords_DocumentWordCount_TextBox + t.s.Form.MetaTag_TextBox[0],
            "");
  EXPECT_EQ(t.s.Form.Caption, "   Zentrel V1.62");
  EXPECT_EQ(t.s.RecentFileCount, 1);
  t.platform.CancelDialog();
  t.Click("Command1");
  EXPECT_EQ(t.platform.dialogs.back().FileName, "");
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

  // A vanished page is reported, and the page in hand stays current under its name.
  ASSERT_TRUE(Dispatch(t.s, "mnu_file_QuickLoadFile1"));
  const int32_t length = t.s.DocumentLength;
  std::filesystem::remove(a);
  t.Click("mnu_file_QuickLoadFile2");
  ASSERT_EQ(t.platform.messages.size(), 1u);
  EXPECT_NE(t.platform.messages[0].find(a), std::string::npos);
  EXPECT_EQ(t.s.DocumentLength, length);
  EXPECT_EQ(t.s.CurrentFileName, b);

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

TEST(Clip_FileName, KeepsTheHeadAndTheTail) {
  EXPECT_EQ(Clip_FileName("/home/user/pages/site/www/index_040.html", " 1:", 32),
            " 1: /h/...es/site/www/index_040.html");
  EXPECT_EQ(Clip_FileName("/a/b.html", " 1:", 13), " 1: /a/b.html");  // exactly the limit
  EXPECT_EQ(Clip_FileName("/a/bc.html", " 1:", 13), " 1: /a/...bc.html");
}

using testing::EncoderTestPage;
using testing::ReadFile;
using testing::ReadTestData;

const std::string kSavedPage =
    "<html>\r\n<head><TITLE>Saved</TITLE>\r\n\r\n</head>\r\n<body>\r\nHello\r\n</body>\r\n"
    "</html>\r\n";

TEST(Do_save, SavesUnderTheNewNameAndMakesItTheCurrentDocument) {
  EncoderTestPage page;
  Do_save(page.s);  // no document: no dialog (an unexpected one fails the test)
  std::string oldPath = page.LoadData("encoder_page.html");
  std::string newPath = page.folder.File("saved.html");
  Set_MetaTag_TextBox(page.s, 0, "Saved");
  page.platform.AnswerSave(newPath, 1, ".html");
  page.Click("mnu_File_SAVESA");
  const state::FileDialog& shown = page.platform.dialogs.at(0);
  EXPECT_EQ(shown.FileName, oldPath);
  EXPECT_EQ(shown.Filter, "(*.html)|*.html|(*.htm)|*.htm|(*.txt)|*.txt|(*.*)|*.*|");
  EXPECT_EQ(shown.FilterIndex, 2);
  EXPECT_EQ(page.s.DefaultFileTypeIndex, 1);

  EXPECT_EQ(ReadFile(newPath), kSavedPage);
  EXPECT_EQ(ReadFile(oldPath), ReadTestData("encoder_page.html"));
  EXPECT_EQ(page.Cache(), kSavedPage);
  EXPECT_EQ(page.s.Form.Caption, newPath + "   Zentrel V1.62");

  page.platform.CancelDialog();
  Do_save(page.s);
  EXPECT_EQ(page.FolderEntries(), (std::set<std::string>{"encoder_page.html", "saved.html"}));
}

TEST(mnu_File_SAVE_Click, NeverWritesAndPicture2OverwritesTheLoadedFile) {
  EncoderTestPage page;
  std::string path = page.LoadData("encoder_page.html");
  Set_MetaTag_TextBox(page.s, 0, "Saved");
  page.Click("mnu_File_SAVE");
  EXPECT_EQ(ReadFile(path), ReadTestData("encoder_page.html"));
  EXPECT_EQ(page.FolderEntries(), std::set<std::string>{"encoder_page.html"});
  page.Click("Picture2");
  EXPECT_EQ(ReadFile(path), kSavedPage);
}

// The save shows what it changes (the description the empty field drops, named) before it
// writes; Cancel writes nothing, Save keeps the replaced file as .bak when asked to.
TEST(Picture2_Click, ShowsTheChangesFirstAndKeepsABackupWhenAsked) {
  EncoderTestPage page;
  std::string path = page.LoadData("encoder_page.html");
  const std::string original = ReadTestData("encoder_page.html");
  Set_MetaTag_TextBox(page.s, 0, "Saved");
  page.s.SaveShowChanges = 1;
  page.platform.saveChanges = false;
  Picture2_Click(page.s);
  ASSERT_EQ(page.platform.changesShown.size(), 1U);
  EXPECT_NE(
      page.platform.changesShown[0].find("-<meta name=\"description\" content=\"old desc\">\n"),
      std::string::npos);
  EXPECT_EQ(page.platform.vanishingShown[0], std::vector<std::string>{"META description"});
  EXPECT_EQ(ReadFile(path), original);
  EXPECT_EQ(page.Cache(), original);

  page.platform.saveChanges = true;
  page.s.SaveKeepBackup = 1;
  Picture2_Click(page.s);
  EXPECT_EQ(ReadFile(path), kSavedPage);
  EXPECT_EQ(ReadFile(path + ".bak"), original);
}

// A save or a rebuild that cannot be written leaves the page in the cache as it was.
TEST(Picture2_Click, AFailingWriteLeavesTheCacheAsItWas) {
  testing::FullDisk disk;
  EncoderTestPage page(disk);
  page.LoadData("encoder_page.html");
  Set_MetaTag_TextBox(page.s, 0, "Saved");
  EXPECT_THROW(Picture2_Click(page.s), file_io::FileError);
  EXPECT_THROW(HTML_ENCODE_Document(page.s, "Testing", 1), file_io::FileError);
  EXPECT_EQ(page.Cache(), ReadTestData("encoder_page.html"));
  EXPECT_EQ(page.FolderEntries(), std::set<std::string>{"encoder_page.html"});
}

// The report and the body text are written as they stand; no report, no dialog.
TEST(PageReport_SAVEAS_Click, ReportAndBodyAreWrittenAsTheyStand) {
  testing::Started t;
  PageReport_SAVEAS_Click(t.s);
  const std::string file = t.Write("out.txt", "old");
  for (const char* body : {"garden tools", ""}) {
    t.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox = body;
    t.platform.AnswerSave(file);
    t.Click("ViewBody_SaveAs");
    EXPECT_EQ(ReadFile(file), body);
  }
  t.s.Form.ReportTextBox = "Report\r\n ";
  t.platform.AnswerSave(file);
  t.Click("PageReport_SAVEAS");
  EXPECT_EQ(ReadFile(file), "Report\r\n ");
  EXPECT_EQ(t.platform.dialogs.back().Filter, "(*.txt)|*.txt|");
  t.platform.CancelDialog();
  t.Click("PageReport_SAVEAS");
  EXPECT_EQ(ReadFile(file), "Report\r\n ");
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

#include "commands/page_saving.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "../metatags/encoder_test_page.h"
#include "base/file_io.h"
#include "commands/edit_meta_tags.h"
#include "commands/file_menu.h"
#include "metatags/page_encoder.h"

namespace zentrel::commands {
namespace {

using testing::EncoderTestPage;
using testing::ReadFile;
using testing::ReadTestData;

const std::string kSavedPage =
    "<html>\r\n<head><TITLE>Saved</TITLE>\r\n\r\n</head>\r\n<body>\r\nHello\r\n</body>\r\n"
    "</html>\r\n";

TEST(Do_save, SavesUnderTheNewNameAndMakesItTheCurrentDocument) {
  EncoderTestPage page;
  Do_save(page.s);  // no document: no dialog (an unexpected one fails the test)
  std::string oldPath = page.Load("encoder_page.html");
  std::string newPath = page.folder.File("saved.html");
  commands::Set_MetaTag_TextBox(page.s, 0, "Saved");
  page.platform.AnswerSave(newPath, 1, ".html");
  mnu_File_SAVESA_Click(page.s);
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
  std::string path = page.Load("encoder_page.html");
  commands::Set_MetaTag_TextBox(page.s, 0, "Saved");
  mnu_File_SAVE_Click(page.s);
  EXPECT_EQ(ReadFile(path), ReadTestData("encoder_page.html"));
  EXPECT_EQ(page.FolderEntries(), std::set<std::string>{"encoder_page.html"});
  Picture2_Click(page.s);
  EXPECT_EQ(ReadFile(path), kSavedPage);
}

// The save shows what it changes (the description the empty field drops, named) before it
// writes; Cancel writes nothing, Save keeps the replaced file as .bak when asked to.
TEST(Picture2_Click, ShowsTheChangesFirstAndKeepsABackupWhenAsked) {
  EncoderTestPage page;
  std::string path = page.Load("encoder_page.html");
  const std::string original = ReadTestData("encoder_page.html");
  commands::Set_MetaTag_TextBox(page.s, 0, "Saved");
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

class FullDisk : public file_io::FileSystem {
 public:
  ssize_t Write(int, const char*, size_t) override {
    errno = ENOSPC;
    return -1;
  }
};

// A save or a rebuild that cannot be written keeps the old file and the page as they were.
TEST(Picture2_Click, AFailingWriteLeavesEverythingAsItWas) {
  FullDisk disk;
  EncoderTestPage page(disk);
  std::string path = page.Load("encoder_page.html");
  const std::string original = ReadTestData("encoder_page.html");
  commands::Set_MetaTag_TextBox(page.s, 0, "Saved");
  EXPECT_THROW(Picture2_Click(page.s), file_io::FileError);
  EXPECT_THROW(commands::HTML_ENCODE_Document(page.s, "Testing", 1), file_io::FileError);
  EXPECT_EQ(ReadFile(path), original);
  EXPECT_EQ(page.Cache(), original);
  EXPECT_EQ(page.FolderEntries(), std::set<std::string>{"encoder_page.html"});
}

}  // namespace
}  // namespace zentrel::commands

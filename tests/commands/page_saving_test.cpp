#include "commands/page_saving.h"

#include "../metatags/encoder_test_page.h"
#include "commands/edit_meta_tags.h"
#include "commands/file_menu.h"
#include "full_disk.h"

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

}  // namespace
}  // namespace zentrel::commands

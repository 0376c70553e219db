#include "metatags/page_encoder.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "commands/edit_meta_tags.h"
#include "commands/page_saving.h"
#include "decode/meta_tag_table.h"
#include "encoder_test_page.h"
#include "metatags/tag_list_file.h"
#include "started_program.h"

namespace zentrel::metatags {
namespace {

using commands::HTML_ENCODE_Document;
using commands::Set_MetaTag_TextBox;
using testing::EncoderTestPage;
using testing::ReadFile;
using testing::ReadTestData;

void Fill_All_Fields(AppState& s) {
  const char* const fields[] = {
      " New Title ", "A page, described", "abs",          "k1, k2",  "gen",    "pid",         "me",
      "(c) me",      "general",           "index,follow", "30 days", "global", "5 March 2003"};
  for (int16_t i = 0; i < 13; ++i)
    Set_MetaTag_TextBox(s, i, fields[i]);
}

TEST(HTML_ENCODE_Document, FullSetOfFieldsInBothOrders) {
  for (int16_t swap : {int16_t{0}, int16_t{1}}) {
    EncoderTestPage page;
    std::string path = page.LoadData("encoder_long_page.html");
    page.s.EncodeSwapContentAndNameOrder = swap;
    Fill_All_Fields(page.s);
    EXPECT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
    std::string expected = ReadTestData(swap == 0 ? "encoder_full_content_first.html"
                                                  : "encoder_full_name_first.html");
    EXPECT_EQ(page.Cache(), expected);
    EXPECT_EQ(page.s.Form.Html_Document_Editor, expected);
    // The carrier file is gone and the loaded page is still the current document, untouched.
    EXPECT_FALSE(file_io::FileExists(page.TempDataFile()));
    EXPECT_EQ(page.s.CurrentFileName, path);
    EXPECT_EQ(ReadFile(path), ReadTestData("encoder_long_page.html"));
  }
}

// Each run blanks the tags it finds with their line ends (and the blank line before
// </head>); a field emptied later loses its tag and nothing else.
TEST(HTML_ENCODE_Document, RebuildingAgainKeepsOneSetOfTags) {
  EncoderTestPage page;
  page.LoadData("encoder_long_page.html");
  Fill_All_Fields(page.s);
  std::string expected = text::ReplaceAll(ReadTestData("encoder_full_content_first.html"),
                                          "\r\n\r\n</head>", "\r\n</head>");
  for (int run = 0; run < 3; ++run) {
    if (run == 2) {
      Set_MetaTag_TextBox(page.s, 12, "");
      expected =
          text::ReplaceAll(expected, "<META content=\"5 March 2003\" name=\"expires\">\r\n", "");
    }
    ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
    ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
    EXPECT_EQ(page.Cache(), expected) << run;
  }
}

TEST(HTML_ENCODE_Document, EmptyFieldsAddOnlyTheTitleAndAMissingTitleBlanksNothing) {
  EncoderTestPage page;
  std::string expected = ReadTestData("encoder_untitled.html");
  expected.insert(expected.find("<head>") + 6, "<TITLE></TITLE>\r\n");
  // Title positions left from another page must not blank anything in this one.
  page.LoadData("encoder_page.html");
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  page.LoadData("encoder_untitled.html");
  decode::Set_MetaTag_Value(page.s, "title", "kept?");
  page.s.Form.TagsOption_USE_META_TITLE = 1;  // only clears the stored title
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  EXPECT_EQ(page.Cache(), expected);
  EXPECT_EQ(decode::Get_MetaTag_Value(page.s, "title"), "");
}

TEST(HTML_ENCODE_Document, BlockGoesInsideHtmlWithoutHeadAndFirstWithNeither) {
  EncoderTestPage page;
  page.LoadData("encoder_headless.html");
  Set_MetaTag_TextBox(page.s, 0, "T");
  Set_MetaTag_TextBox(page.s, 6, "me");
  page.platform.AnswerYes();
  std::string out = page.folder.File("out.html");
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, out, 0));
  EXPECT_EQ(page.platform.questions.back(),
            "WARNING: WARNING - Page Is Missing Opening <HEAD> TAG"
            " - IGNORE this ERROR and SAVE ANYWAY ? ");
  const std::string block = "<TITLE>T</TITLE>\r\n<META content=\"me\" name=\"author\">\r\n";
  EXPECT_EQ(ReadFile(out), "<html>" + block +
                               "\r\n<body>\r\nHi there, this page has a body but no head at "
                               "all.\r\n</body>\r\n</html>\r\n");

  page.LoadData("encoder_text_only.txt");
  page.platform.AnswerYes();
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  EXPECT_EQ(page.platform.questions.back(),
            "WARNING: WARNING - Page Is Missing Opening <HTML> TAG"
            " - IGNORE this ERROR and REBUILD ANYWAY ? ");
  EXPECT_EQ(page.Cache().substr(0, block.size() + 5), block + "Hello");
}

TEST(HTML_ENCODE_Document, NoToTheWarningOrNoNameChangesNothing) {
  EncoderTestPage page;
  EXPECT_FALSE(HTML_ENCODE_Document(page.s, "Testing", 1));  // no document yet
  std::string path = page.LoadData("encoder_headless.html");
  Set_MetaTag_TextBox(page.s, 1, "desc");
  const auto bytes = page.s.DocumentBytes;
  page.platform.AnswerNo();
  EXPECT_FALSE(HTML_ENCODE_Document(page.s, page.folder.File("out.html"), 0));
  page.platform.AnswerNo();
  EXPECT_FALSE(HTML_ENCODE_Document(page.s, "Testing", 1));
  EXPECT_FALSE(HTML_ENCODE_Document(page.s, "", 0));  // asks nothing
  EXPECT_EQ(page.s.DocumentBytes, bytes);
  EXPECT_EQ(page.FolderEntries(), std::set<std::string>{"encoder_headless.html"});
  EXPECT_EQ(ReadFile(path), ReadTestData("encoder_headless.html"));
}

// A header block longer than the room of twice the page is a run-time error; the cache, its
// old META tag already blanked, is put back and a stale carrier file is cleaned up.
TEST(HTML_ENCODE_Document, OverflowingTheBufferRestoresTheCache) {
  EncoderTestPage page;
  page.LoadData("encoder_tiny.html");
  const std::string original = ReadTestData("encoder_tiny.html");
  testing::WriteFile(page.TempDataFile(), "stale");
  Set_MetaTag_TextBox(page.s, 1, std::string(150, 'x'));
  try {
    HTML_ENCODE_Document(page.s, "Testing", 1);
    ADD_FAILURE() << "no run-time error";
  } catch (const RunTimeError& e) {
    EXPECT_EQ(e.Code(), 9);
  }
  EXPECT_EQ(page.Cache(), original);
  EXPECT_EQ(page.s.DocumentText, original);
  EXPECT_FALSE(file_io::FileExists(page.TempDataFile()));

  Set_MetaTag_TextBox(page.s, 1, "d");  // a short field fits
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  EXPECT_EQ(page.Cache(),
            "<html><head><TITLE></TITLE>\r\n<META content=\"d\" name=\"description\">\r\n"
            "</head><body></body></html>");
}

using commands::Apply_MetaTag_List_Text;
using commands::Load_MetaTagList;
using commands::Save_MetaTag_List;

struct Panel : testing::Started {
  std::string path = folder.File("set.tag");
  void Field(int16_t i, const std::string& text, int16_t marked) {
    Set_MetaTag_TextBox(s, i, text);
    s.Form.MetaTag_Selection_CheckBox[static_cast<size_t>(i)] = marked;
  }
  const std::string& Text(size_t i) const { return s.Form.MetaTag_TextBox[i]; }
};

TEST(Save_MetaTag_List, MarkedNonEmptyFieldsOneLineEachWithCommasEncoded) {
  Panel p;
  testing::WriteFile(p.path, "old contents\r\n");
  p.Field(0, " Title, with comma ", 1);
  p.Field(4, "   ", 1);      // marked but blank
  p.Field(6, "Someone", 0);  // not marked
  p.Field(10, "30 days", 1);
  p.platform.AnswerSave(p.path);
  Save_MetaTag_List(p.s);
  EXPECT_EQ(ReadFile(p.path), "pagetitle:Title&coma& with comma\r\nrevisit-after:30 days\r\n");
  EXPECT_EQ(p.platform.dialogs.at(0).Filter, "(*.tag)|*.tag|(*.*)|*.*|");

  // Back into the marked fields; the unmarked one keeps its text though the file names it.
  p.Field(0, "", 1);
  p.Field(6, "kept", 0);
  testing::WriteFile(p.path, ReadFile(p.path) + "author:x\r\n");
  p.platform.AnswerOpen(p.path);
  Load_MetaTagList(p.s);
  EXPECT_EQ(p.Text(0), "Title, with comma");
  EXPECT_EQ(p.Text(6), "kept");
}

// CR-only line ends among the others.
TEST(Apply_MetaTag_List_Text, SkipsUnknownNamesAndLeavesUnnamedFields) {
  Panel p;
  p.Field(1, "old", 1);
  p.Field(2, "kept abstract", 1);  // marked, not named
  p.Field(3, "", 1);
  Apply_MetaTag_List_Text(p.s,
                          "description:a&coma& b\rbogus:1\r\nnocolon\rKeywords:upper\r\n"
                          "keywords:k\n");
  EXPECT_EQ(p.Text(1), "a, b");
  EXPECT_EQ(p.Text(2), "kept abstract");
  EXPECT_EQ(p.Text(3), "k");

  // A missing file or a cancelled dialog changes nothing.
  p.platform.AnswerOpen(p.folder.File("missing.tag"));
  Load_MetaTagList(p.s);
  p.platform.CancelDialog();
  Load_MetaTagList(p.s);
  EXPECT_EQ(p.Text(1), "a, b");

  // "zentrel" has no field, so there is no mark to look at.
  EXPECT_THROW(Apply_MetaTag_List_Text(p.s, "zentrel:x\r\n"), RunTimeError);
}

}  // namespace
}  // namespace zentrel::metatags

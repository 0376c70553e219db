#include "metatags/page_encoder.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "base/text.h"
#include "encoder_test_page.h"
#include "metatags/meta_tag_panel.h"

namespace zentrel::metatags {
namespace {

using testing::EncoderTestPage;
using testing::ReadFile;
using testing::ReadTestData;

const char* const kFullFields[] = {
    " New Title ", "A page, described", "abs",          "k1, k2",  "gen",    "pid",         "me",
    "(c) me",      "general",           "index,follow", "30 days", "global", "5 March 2003"};

void Fill_All_Fields(AppState& s) {
  for (int16_t i = 0; i < 13; ++i)
    Set_MetaTag_TextBox(s, i, kFullFields[i]);
}

TEST(Build_Meta_Tag, OnlyTheFirstAttributeIsTrimmed) {
  testing::FakePlatform platform;
  AppState s(platform);
  EXPECT_EQ(Build_Meta_Tag(s, " noindex,follow ", "robots"),
            "<META content=\"noindex,follow\" name=\"robots\">\r\n");
  EXPECT_EQ(Build_Meta_Tag(s, "x", " robots "), "<META content=\"x\" name=\" robots \">\r\n");
  s.EncodeSwapContentAndNameOrder = 1;
  EXPECT_EQ(Build_Meta_Tag(s, "  lead", " robots "),
            "<META name=\"robots\" content=\"  lead\">\r\n");
}

TEST(HTML_ENCODE_Document, FullSetOfFieldsInBothOrders) {
  for (int16_t swap : {int16_t{0}, int16_t{1}}) {
    EncoderTestPage page;
    std::string path = page.Load("encoder_long_page.html");
    page.s.Form.MetaTagEncodePref_SwapContentAndNameOrder_CheckBox = swap;
    MetaTagEncodePref_SwapContentAndNameOrder_CheckBox_Click(page.s);
    Fill_All_Fields(page.s);

    EXPECT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
    std::string expected = ReadTestData(swap == 0 ? "encoder_full_content_first.html"
                                                  : "encoder_full_name_first.html");
    EXPECT_EQ(page.Cache(), expected);
    EXPECT_EQ(page.s.DocumentText, expected);
    EXPECT_EQ(page.s.Form.Html_Document_Editor, expected);
    // The carrier file is gone and the loaded page is still the current document, untouched.
    EXPECT_FALSE(file_io::FileExists(page.TempDataFile()));
    EXPECT_EQ(page.s.CurrentFileName, path);
    EXPECT_EQ(ReadFile(path), ReadTestData("encoder_long_page.html"));
    EXPECT_TRUE(page.platform.questions.empty());
  }
}

// Each run blanks the tags it finds, the look-ahead taking their line ends (and the blank line
// before </head>) with them; a field emptied later loses its tag and nothing else.
TEST(HTML_ENCODE_Document, RebuildingAgainKeepsOneSetOfTags) {
  EncoderTestPage page;
  page.Load("encoder_long_page.html");
  Fill_All_Fields(page.s);
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  std::string second = text::ReplaceAll(ReadTestData("encoder_full_content_first.html"),
                                        "\r\n\r\n</head>", "\r\n</head>");
  EXPECT_EQ(page.Cache(), second);
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  EXPECT_EQ(page.Cache(), second);

  Set_MetaTag_TextBox(page.s, 12, "");
  std::string withoutExpires =
      text::ReplaceAll(second, "<META content=\"5 March 2003\" name=\"expires\">\r\n", "");
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  EXPECT_EQ(page.Cache(), withoutExpires);
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  EXPECT_EQ(page.Cache(), withoutExpires);
}

TEST(HTML_ENCODE_Document, EmptyFieldsAddOnlyTheTitleAndAMissingTitleBlanksNothing) {
  EncoderTestPage page;
  const std::string original = ReadTestData("encoder_untitled.html");
  std::string expected = original;
  expected.insert(original.find("<head>") + 6, "<TITLE></TITLE>\r\n");

  page.Load("encoder_untitled.html");
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  EXPECT_EQ(page.Cache(), expected);
  EXPECT_EQ(page.Cache().substr(0, 9), "<!DOCTYPE");

  // Title positions left from another page must not blank anything in this one either.
  page.Load("encoder_page.html");
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  page.Load("encoder_untitled.html");
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  EXPECT_EQ(page.Cache(), expected);
}

TEST(HTML_ENCODE_Document, BlockGoesInsideHtmlWithoutHeadAndFirstWithNeither) {
  EncoderTestPage page;
  std::string path = page.Load("encoder_headless.html");
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
  EXPECT_EQ(page.Cache(), ReadFile(out));
  EXPECT_EQ(page.s.CurrentFileName, path);  // the encoder itself never renames the document

  page.Load("encoder_text_only.txt");
  page.platform.AnswerYes();
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  EXPECT_EQ(page.platform.questions.back(),
            "WARNING: WARNING - Page Is Missing Opening <HTML> TAG"
            " - IGNORE this ERROR and REBUILD ANYWAY ? ");
  EXPECT_EQ(page.Cache(),
            block + "Hello\r\nWorld\r\nJust some plain text without any tags at all.\r\n");
}

TEST(HTML_ENCODE_Document, NoToTheWarningOrNoNameChangesNothing) {
  EncoderTestPage page;
  EXPECT_FALSE(HTML_ENCODE_Document(page.s, "Testing", 1));  // no document yet
  std::string path = page.Load("encoder_headless.html");
  Set_MetaTag_TextBox(page.s, 1, "desc");
  const auto bytes = page.s.DocumentBytes;
  const auto fields = page.s.Form.MetaTag_TextBox;
  page.platform.AnswerNo();
  EXPECT_FALSE(HTML_ENCODE_Document(page.s, page.folder.File("out.html"), 0));
  page.platform.AnswerNo();
  EXPECT_FALSE(HTML_ENCODE_Document(page.s, "Testing", 1));
  EXPECT_FALSE(HTML_ENCODE_Document(page.s, "", 0));  // asks nothing
  EXPECT_EQ(page.s.DocumentBytes, bytes);
  EXPECT_EQ(page.s.Form.MetaTag_TextBox, fields);
  EXPECT_EQ(page.FolderEntries(), std::set<std::string>{"encoder_headless.html"});
  EXPECT_EQ(ReadFile(path), ReadTestData("encoder_headless.html"));
}

// A header block longer than the room of twice the page is a run-time error; the cache, its
// old META tag already blanked, is put back and a stale carrier file is cleaned up.
TEST(HTML_ENCODE_Document, OverflowingTheBufferRestoresTheCache) {
  EncoderTestPage page;
  std::string path = page.Load("encoder_tiny.html");
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
  EXPECT_EQ(page.s.DocumentBytes.size(), original.size() + 1);
  EXPECT_FALSE(file_io::FileExists(page.TempDataFile()));
  EXPECT_EQ(ReadFile(path), original);

  // With a short field the same page fits.
  Set_MetaTag_TextBox(page.s, 1, "d");
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  EXPECT_EQ(page.Cache(),
            "<html><head><TITLE></TITLE>\r\n<META content=\"d\" name=\"description\">\r\n"
            "</head><body></body></html>");
}

TEST(HTML_ENCODE_Document, OptionalMetaTitleOnlyClearsTheStoredTitle) {
  EncoderTestPage page;
  page.Load("encoder_untitled.html");
  decode::Set_MetaTag_Value(page.s, "title", "kept?");
  page.s.Form.TagsOption_USE_META_TITLE = 1;
  ASSERT_TRUE(HTML_ENCODE_Document(page.s, "Testing", 1));
  EXPECT_EQ(decode::Get_MetaTag_Value(page.s, "title"), "");
  EXPECT_EQ(page.Cache().find("name=\"title\""), std::string::npos);
}

}  // namespace
}  // namespace zentrel::metatags

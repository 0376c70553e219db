#include "decode/decoder.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "base/text.h"
#include "decode_fixture.h"
#include "document/document_cache.h"
#include "test_files.h"

namespace zentrel::decode {
namespace {

using namespace std::string_literals;
using testing::DecodeState;
using text::SignedNumber;

int32_t At(const std::string& page, const std::string& what, size_t from = 0) {
  return static_cast<int32_t>(page.find(what, from));
}

TEST(HTML_Decode_Document, RealPageSectionsTitleMetaValuesAndWordText) {
  DecodeState d;
  AppState& s = d.s;
  const std::string page = testing::ReadTestData("decode_page.html");
  s.DocumentLength = document::DO_LOAD_File_TO_CACHE(s, testing::TestDataPath("decode_page.html"));
  HTML_Decode_Document(s);
  const std::pair<int32_t, int32_t> sections[] = {
      {s.HtmlStart, At(page, "<html")},    {s.HtmlEnd, At(page, "</html>")},
      {s.HeadStart, At(page, "<head>")},   {s.HeadEnd, At(page, "</head>")},
      {s.BodyStart, At(page, "<body>")},   {s.BodyEnd, At(page, "</body>")},
      {s.TitleStart, At(page, "<title>")}, {s.TitleEnd, At(page, "</title>") + 8},
  };
  for (const auto& [found, expected] : sections)
    EXPECT_EQ(found, expected);
  EXPECT_EQ(s.TitleText, "Garden Tools &amp; Seeds");
  EXPECT_EQ(d.Row("pagetitle").MetaTagValue, "Garden Tools &amp; Seeds");
  EXPECT_EQ(d.Row("pagetitle").MetaTagEnd, SignedNumber(s.TitleEnd));

  EXPECT_EQ(d.Row("description").MetaTagValue, "Hand tools for the garden");
  EXPECT_EQ(d.Row("description").MetaTagStart, SignedNumber(At(page, "<meta name=\"desc")));
  EXPECT_EQ(d.Row("description").MetaTagEnd, SignedNumber(At(page, "<meta content") - 2));
  EXPECT_EQ(d.Row("keywords").MetaTagValue, "spade, rake, hoe");  // content before name
  EXPECT_EQ(d.Row("author").MetaTagValue, "Ann Smith");           // NAME=Author, case kept
  EXPECT_EQ(d.Row("robots").MetaTagValue, "index,follow");        // unquoted content
  // A ">" inside the content ends the attribute text before the value's closing quote.
  EXPECT_EQ(d.Row("abstract").MetaTagStart, "-1");
  // A quoted ">" after the content: the value is read, and the whole tag is passed.
  EXPECT_EQ(d.Row("copyright").MetaTagValue, "(c) Ann");
  EXPECT_EQ(d.Row("copyright").MetaTagEnd,
            SignedNumber(At(page, "\r\n", static_cast<size_t>(At(page, "<meta name=\"copy")))));

  // Script, style, comments, anchors and text after the body are left out; ALT texts and the
  // title go in; entities are decoded and line ends joined.
  EXPECT_EQ(s.StrippedText,
            "Garden Tools & SeedsSpadesStrong spade for clay.Steel rakeRakes <and> hoes ");

  // The rescan finds the same values and leaves the word text alone.
  Clear_MetaTag_Values(s);
  s.StrippedText = "kept";
  HTML_ReScan_Document(s);
  EXPECT_EQ(s.StrippedText, "kept");
  EXPECT_EQ(d.Row("robots").MetaTagValue, "index,follow");
}

TEST(HTML_Decode_Document, SectionPositionsAreTheLastSeenAndResetEachTime) {
  DecodeState d;
  d.Put("<HTML><html><Body>x</BODY></html>");
  HTML_Decode_Document(d.s);
  EXPECT_EQ(d.s.HtmlStart, 6);
  d.Put("<html>no body</html>");
  HTML_ReScan_Document(d.s);
  EXPECT_EQ(d.s.BodyStart, -1);
  EXPECT_EQ(d.s.HtmlEnd, 13);
}

TEST(Html_Decode_TitleTag, FixedOffsetsForAttributesAndUnclosedTitles) {
  DecodeState d;
  d.Put("<title lang=\"en\">Hello</title><p>x</p>");
  HTML_Decode_Document(d.s);
  EXPECT_EQ(d.s.TitleText, "lang=\"en\">Hello");
  d.Put("<html><title>abc<p>d</p>");
  HTML_Decode_Document(d.s);
  EXPECT_EQ(d.s.TitleText, "");
  EXPECT_EQ(d.Row("pagetitle").MetaTagEnd, " 13");
  EXPECT_EQ(d.s.StrippedText, "abcd ");
}

TEST(Html_Decode_METATAG, EveryRowIsTriedAndDescriptionCanJoinTheText) {
  DecodeState d;
  // Two names in one tag: the second match skips the following tag, whose name is then lost.
  d.Put(
      "<meta name=\"keywords\" name=\"author\" content=\"K\"><meta name=\"robots\" "
      "content=\"R\"><body>t</body>");
  HTML_Decode_Document(d.s);
  EXPECT_EQ(d.Row("keywords").MetaTagValue, "K");
  EXPECT_EQ(d.Row("author").MetaTagValue, "K");
  EXPECT_EQ(d.Row("robots").MetaTagValue, "");

  d.s.DecodeIncludeMetaDescriptionWithBody = 1;
  d.Put("<meta name='generator' content='g'><META content=\"  A B  \" NAME=\"description\">x");
  HTML_Decode_Document(d.s);
  EXPECT_EQ(d.Row("generator").MetaTagValue, "");  // single quotes are not recognised
  EXPECT_EQ(d.s.StrippedText, "A Bx\0 "s);

  // content=" without its closing quote does not fall back to the unquoted form.
  d.Put("<meta name=\"rating\" content=\"general><p>x</p>");
  d.s.MetaTags[8].MetaTagValue = "old";
  HTML_ReScan_Document(d.s);
  EXPECT_EQ(d.Row("rating").MetaTagValue, "old");
}

TEST(HTML_Decode_Document, WordTextRules) {
  struct Case {
    std::string page, text;
    int16_t alt = 1, body = 1;
  };
  const Case cases[] = {
      // Without a closed body all text counts; at the page's end the zero byte is taken.
      {"Hello <b>big</b> world", "Hello big world\0 "s},
      {"<p>head</p><body>in</body>out<p>footer</p>", "headin "},
      {"<body>Hello\r\nWorld\nagain\r\n\r\n  x</body>", "HelloWorld\nagain x "},
      {"<body>&NBSP;a&nbsp;&nbsp; b &amp;lt; &quot;q&quot; &gt;</body>", "&NBSP;a b < \"q\" > "},
      {"<body>a<!-- note -->b<script>c</script>d<style>e</STYLE>f</body>", "abdf "},
      {"<body>a<script>b<a href=x>c<?php d?>e</body>", "abce "},  // unclosed
      {"<body><img src=\"p\" ALT=\"Red car\">x</body>", "Red carx "},
      {"<body><img alt=xyz src=\"p.png\">t</body>", "yz src=t "},
      {"<body><img alt=\"a>b\">c</body>", "c "},  // ALT without its closing quote
      {"<body><img alt=\"A\">c</body>", "c ", 0},
      {"<title>T</title><body>x<img alt=\"A\">y</body>", "TA ", 1, 0},
  };
  DecodeState d;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.page);
    d.s.DecodeIncludeAltText = c.alt;
    d.s.DecodeIncludeBodyText = c.body;
    d.Put(c.page);
    HTML_Decode_Document(d.s);
    EXPECT_EQ(d.s.StrippedText, c.text);
  }
}

// The window repaints every 801 passes of the scan and while the decoder finishes.
TEST(HTML_Decode_Document, LetsEventsRunEvery801PassesAndWhileFinishing) {
  DecodeState d;
  std::string page;
  for (int i = 0; i < 1602; ++i)
    page += "<i>";
  d.Put(page);
  const long before = d.platform.eventsRun;
  HTML_ReScan_Document(d.s);
  EXPECT_EQ(d.platform.eventsRun - before, 2);
  d.Put(page + "<i>");
  HTML_Decode_Document(d.s);
  EXPECT_EQ(d.platform.eventsRun - before, 2 + 2 + 3);
  d.Put(page + std::string(page, 0, 799 * 3));  // 2401 tags
  const long third = d.platform.eventsRun;
  HTML_ReScan_Document(d.s);
  EXPECT_EQ(d.platform.eventsRun - third, 2);  // every 801 passes, not every 800
}

TEST(MetaTagTable, ValuesByExactNameAndClearingTheRowsInUse) {
  DecodeState d;
  AppState& s = d.s;
  EXPECT_EQ(Find_MetaTag_Index(s, "Keywords"), -1);
  Set_MetaTag_Value(s, "robots", "noindex");
  Set_MetaTag_Value(s, "Robots", "ignored");
  EXPECT_EQ(Get_MetaTag_Value(s, "robots"), "noindex");
  s.MetaTags[14].MetaTagEnd = " 9";
  s.MetaTags[15].MetaTagValue = "outside the rows in use";
  Clear_MetaTag_Values(s);
  EXPECT_EQ(Get_MetaTag_Value(s, "robots"), "");
  EXPECT_EQ(s.MetaTags[14].MetaTagEnd, "-1");
  EXPECT_EQ(s.MetaTags[15].MetaTagValue, "outside the rows in use");
  EXPECT_THROW(Set_MetaTag_Entry(s, 21, "x", 1), RunTimeError);
}

}  // namespace
}  // namespace zentrel::decode

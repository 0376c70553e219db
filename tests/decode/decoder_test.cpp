#include "decode/decoder.h"

#include <gtest/gtest.h>

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
  const std::string page = testing::ReadTestData("decode_page.html");
  d.s.DocumentLength =
      document::DO_LOAD_File_TO_CACHE(d.s, testing::TestDataPath("decode_page.html"));
  HTML_Decode_Document(d.s);
  AppState& s = d.s;

  EXPECT_EQ(s.HtmlStart, At(page, "<html"));
  EXPECT_EQ(s.HtmlEnd, At(page, "</html>"));
  EXPECT_EQ(s.HeadStart, At(page, "<head>"));
  EXPECT_EQ(s.HeadEnd, At(page, "</head>"));
  EXPECT_EQ(s.BodyStart, At(page, "<body>"));
  EXPECT_EQ(s.BodyEnd, At(page, "</body>"));
  EXPECT_EQ(s.TitleStart, At(page, "<title>"));
  EXPECT_EQ(s.TitleEnd, At(page, "</title>") + 8);
  EXPECT_EQ(s.TitleText, "Garden Tools &amp; Seeds");
  EXPECT_EQ(d.Row("pagetitle").MetaTagValue, "Garden Tools &amp; Seeds");
  EXPECT_EQ(d.Row("pagetitle").MetaTagStart, SignedNumber(s.TitleStart));
  EXPECT_EQ(d.Row("pagetitle").MetaTagEnd, SignedNumber(s.TitleEnd));

  EXPECT_EQ(d.Row("description").MetaTagValue, "Hand tools for the garden");
  EXPECT_EQ(d.Row("description").MetaTagStart, SignedNumber(At(page, "<meta name=\"desc")));
  EXPECT_EQ(d.Row("description").MetaTagEnd, SignedNumber(At(page, "<meta content") - 2));
  EXPECT_EQ(d.Row("keywords").MetaTagValue, "spade, rake, hoe");  // content before name
  EXPECT_EQ(d.Row("author").MetaTagValue, "Ann Smith");           // NAME=Author, case kept
  EXPECT_EQ(d.Row("robots").MetaTagValue, "index,follow");        // unquoted content
  // A ">" inside the content ends the attribute text before the value's closing quote.
  EXPECT_EQ(d.Row("abstract").MetaTagValue, "");
  EXPECT_EQ(d.Row("abstract").MetaTagStart, "-1");
  // A quoted ">" after the content: the value is read, and the whole tag is passed.
  EXPECT_EQ(d.Row("copyright").MetaTagValue, "(c) Ann");
  const int32_t pastCopyright =
      At(page, "\r\n", static_cast<size_t>(At(page, "<meta name=\"copy")));
  EXPECT_EQ(d.Row("copyright").MetaTagEnd, SignedNumber(pastCopyright));

  // Script, style, comments, anchors and text after the body are left out; ALT texts and the
  // title go in; entities are decoded and line ends joined.
  EXPECT_EQ(s.StrippedText,
            "Garden Tools & SeedsSpadesStrong spade for clay.Steel rakeRakes <and> hoes ");

  // The rescan finds the same positions and values and leaves the word text alone.
  const DecoderFields decoded = s;
  Clear_MetaTag_Values(s);
  s.StrippedText = "kept";
  HTML_ReScan_Document(s);
  EXPECT_EQ(s.StrippedText, "kept");
  EXPECT_EQ(s.HtmlStart, decoded.HtmlStart);
  EXPECT_EQ(s.BodyEnd, decoded.BodyEnd);
  EXPECT_EQ(s.TitleText, decoded.TitleText);
  EXPECT_EQ(d.Row("robots").MetaTagValue, "index,follow");
  EXPECT_EQ(d.Row("copyright").MetaTagEnd, SignedNumber(pastCopyright));
}

TEST(HTML_Decode_Document, SectionPositionsAreTheLastSeenAndResetEachTime) {
  DecodeState d;
  d.Put("<HTML><html><Body>x</BODY></html>");
  HTML_Decode_Document(d.s);
  EXPECT_EQ(d.s.HtmlStart, 6);
  EXPECT_EQ(d.s.BodyEnd, 19);
  d.Put("<html>no body</html>");
  HTML_ReScan_Document(d.s);
  EXPECT_EQ(d.s.BodyStart, -1);
  Clear_HTML_BODY_AND_HEADER_VALUES(d.s);
  EXPECT_EQ(d.s.BodyStart, 0);
  EXPECT_EQ(d.s.HtmlEnd, 13);
}

TEST(Html_Decode_TitleTag, FixedOffsetsForAttributesAndUnclosedTitles) {
  DecodeState d;
  d.Put("<title lang=\"en\">Hello</title><p>x</p>");
  HTML_Decode_Document(d.s);
  EXPECT_EQ(d.s.TitleText, "lang=\"en\">Hello");
  EXPECT_EQ(d.s.StrippedText, "lang=\"en\">Hellox ");
  d.Put("<html><title>abc<p>d</p>");
  HTML_Decode_Document(d.s);
  EXPECT_EQ(d.s.TitleText, "");
  EXPECT_EQ(d.s.TitleEnd, 13);
  EXPECT_EQ(d.Row("pagetitle").MetaTagEnd, " 13");
  EXPECT_EQ(d.s.StrippedText, "abcd ");
}

TEST(Html_Decode_METATAG, EveryRowIsTriedAndDescriptionCanJoinTheText) {
  DecodeState d;
  // Two names in one tag: the second match skips the following tag, whose name is then lost.
  const std::string page =
      "<meta name=\"keywords\" name=\"author\" content=\"K\"><meta name=\"robots\" "
      "content=\"R\"><body>t</body>";
  d.Put(page);
  HTML_Decode_Document(d.s);
  EXPECT_EQ(d.Row("keywords").MetaTagStart, " 0");
  EXPECT_EQ(d.Row("keywords").MetaTagEnd, SignedNumber(At(page, "<meta name=\"robots")));
  EXPECT_EQ(d.Row("author").MetaTagValue, "K");
  EXPECT_EQ(d.Row("author").MetaTagEnd, SignedNumber(At(page, "<body>")));
  EXPECT_EQ(d.Row("robots").MetaTagValue, "");

  d.s.DecodeIncludeMetaDescriptionWithBody = 1;
  d.Put("<meta name='generator' content='g'><META content=\"  A B  \" NAME=\"description\">x");
  HTML_Decode_Document(d.s);
  EXPECT_EQ(d.Row("generator").MetaTagValue, "");  // single quotes are not recognised
  EXPECT_EQ(d.Row("description").MetaTagValue, "A B");
  EXPECT_EQ(d.s.StrippedText, "A Bx\0 "s);
  d.s.StrippedText = "kept";
  HTML_ReScan_Document(d.s);
  EXPECT_EQ(d.s.StrippedText, "kept");

  // content=" without its closing quote does not fall back to the unquoted form.
  d.Put("<meta name=\"rating\" content=\"general><p>x</p>");
  d.s.MetaTags[8].MetaTagValue = "old";
  HTML_ReScan_Document(d.s);
  EXPECT_EQ(d.Row("rating").MetaTagValue, "old");
}

TEST(HTML_Decode_Document, WordTextRules) {
  DecodeState d;
  auto words = [&d](const std::string& page) {
    d.Put(page);
    HTML_Decode_Document(d.s);
    return d.s.StrippedText;
  };
  // Without a closed body all text counts; at the page's end the zero byte past it is taken.
  EXPECT_EQ(words("Hello <b>big</b> world"), "Hello big world\0 "s);
  EXPECT_EQ(words("<p>head</p><body>in</body>out<p>footer</p>"), "headin ");
  EXPECT_EQ(words("<body>Hello\r\nWorld\nagain\r\n\r\n  x</body>"), "HelloWorld\nagain x ");
  EXPECT_EQ(words("<body>&NBSP;a&nbsp;&nbsp; b &amp;lt; &quot;q&quot; &gt;</body>"),
            "&NBSP;a b < \"q\" > ");
  EXPECT_EQ(words("<body>a<!-- note -->b<script>c</script>d<style>e</STYLE>f</body>"), "abdf ");
  EXPECT_EQ(words("<body>a<script>b<a href=x>c<?php d?>e</body>"), "abce ");  // unclosed
  EXPECT_EQ(words("<body><img src=\"p\" ALT=\"Red car\">x</body>"), "Red carx ");
  EXPECT_EQ(words("<body><img alt=xyz src=\"p.png\">t</body>"), "yz src=t ");
  EXPECT_EQ(words("<body><img alt=\"a>b\">c</body>"), "c ");  // ALT without its closing quote
  d.s.DecodeIncludeAltText = 0;
  EXPECT_EQ(words("<body><img alt=\"A\">c</body>"), "c ");
  d.s.DecodeIncludeAltText = 1;
  d.s.DecodeIncludeBodyText = 0;
  d.s.ViewBodyShowRaw = 1;
  EXPECT_EQ(words("<title>T</title><body>x<img alt=\"A\">y</body>"), "TA ");
  EXPECT_EQ(d.s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox, "TA ");
}

TEST(HTML_Decode_Document, LetsEventsRunEvery801PassesAndWhileFinishing) {
  DecodeState d;
  std::string page;
  for (int i = 0; i < 1602; ++i)
    page += "<i>";
  d.Put(page);
  HTML_ReScan_Document(d.s);
  EXPECT_EQ(d.platform.eventsRun, 2);
  d.Put(page + "<i>");
  HTML_Decode_Document(d.s);
  EXPECT_EQ(d.platform.eventsRun, 2 + 2 + 3);
}

std::string Repeat(const std::string& piece, size_t n) {
  std::string out;
  out.reserve(piece.size() * n);
  for (size_t i = 0; i < n; ++i)
    out += piece;
  return out;
}

TEST(HTML_Decode_Document, EmptyAndHostilePagesFinish) {
  DecodeState d;
  d.s.StrippedText = "old";
  d.Put("");
  HTML_Decode_Document(d.s);
  EXPECT_EQ(d.s.StrippedText, "old");
  const std::pair<std::string, std::string> pages[] = {
      {std::string(4 << 20, '<'), " "},
      {Repeat("<title>", 100000), " "},
      {"<body>" + Repeat("<script>x", 100000) + "</body>", Repeat("x", 100000) + " "},
      {Repeat("<meta name=\"keywords\" content=\"k\">", 10000) + "<body>w</body>", "w "},
      {"<body>" + Repeat("<div>", 100000) + "t" + Repeat("</div>", 100000) + "</body>", "t "},
      {"<body>text<b class=\"x", "text "},  // an unterminated tag at the end
  };
  for (const auto& [page, text] : pages) {
    d.Put(page);
    HTML_Decode_Document(d.s);
    EXPECT_EQ(d.s.StrippedText, text) << page.substr(0, 40);
  }
  EXPECT_EQ(d.Row("keywords").MetaTagStart, SignedNumber(34 * 9999));
  std::string binary;
  uint32_t x = 12345;
  for (int i = 0; i < 200000; ++i) {
    x = x * 1103515245u + 12345u;
    binary.push_back(static_cast<char>(x >> 24));
  }
  d.Put(binary);
  EXPECT_NO_THROW(HTML_Decode_Document(d.s));
  EXPECT_NO_THROW(HTML_ReScan_Document(d.s));
}

TEST(HTML_Decode_Document, LargePage) {
  const std::string block =
      "<p class=\"t\">The quick brown fox jumps over the lazy dog near the river bank, "
      "while &amp; garden tools rest by the shed.\r\nA second line of plain words follows "
      "here with numbers 123 and 456.</p>\r\n<img src=\"x.png\" alt=\"Fox\"><script>var a = "
      "'<b>';</script>\r\n";
  const std::string blockText =
      "The quick brown fox jumps over the lazy dog near the river bank, while & garden tools "
      "rest by the shed.A second line of plain words follows here with numbers 123 and 456.Fox";
  const size_t blocks = (50u << 20) / block.size();
  DecodeState d;
  const std::string tail = "</body><p>after</p></html>";
  d.Put("<html><head><title>Big</title></head><body>" + Repeat(block, blocks) + tail);
  d.s.DocumentText.clear();
  HTML_Decode_Document(d.s);
  ASSERT_EQ(d.s.StrippedText.size(), 3 + blocks * blockText.size() + 1);
  EXPECT_EQ(d.s.StrippedText.compare(0, 3, "Big"), 0);
  for (size_t i = 0; i < blocks; ++i)
    ASSERT_EQ(d.s.StrippedText.compare(3 + i * blockText.size(), blockText.size(), blockText), 0)
        << "block " << i;
  EXPECT_EQ(d.s.BodyEnd, d.s.DocumentLength - static_cast<int32_t>(tail.size()));
}

}  // namespace
}  // namespace zentrel::decode

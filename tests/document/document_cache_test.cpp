#include "document/document_cache.h"

#include "base/run_time_error.h"
#include "document/tag_scanner.h"
#include "started_program.h"

namespace zentrel::document {
namespace {

struct Cache : testing::Started {
  std::string Bytes() const { return std::string(s.DocumentBytes.begin(), s.DocumentBytes.end()); }
};

TEST(DO_LOAD_File_TO_CACHE, BytesAndTextAreIdenticalWithOneZeroPastTheEnd) {
  Cache c;
  testing::TempFolder folder;
  std::string binary;
  for (int i = 0; i < 512; ++i)
    binary.push_back(static_cast<char>(i % 256));
  for (const std::string& content : {binary, std::string()}) {
    testing::WriteFile(folder.File("page.htm"), content);
    EXPECT_EQ(DO_LOAD_File_TO_CACHE(c.s, folder.File("page.htm")),
              static_cast<int32_t>(content.size()));
    EXPECT_EQ(c.Bytes(), content + '\0');
  }
  EXPECT_THROW(DO_LOAD_File_TO_CACHE(c.s, folder.File("missing.htm")), file_io::FileError);
  EXPECT_EQ(c.s.DocumentBytes.size(), 1u);  // a failed read leaves the cache as it was
}

TEST(Reload_File_From_Memory_TO_Cache, TakesEditedTextWithFourSpareZeros) {
  Cache c;
  c.Put("abc");
  c.s.Form.Html_Document_Editor = "wxyz!";
  const int busy = c.platform.busyCount;
  EXPECT_EQ(Reload_File_From_Memory_TO_Cache(c.s), 5);
  EXPECT_EQ(c.Bytes(), std::string("wxyz!") + std::string(5, '\0'));
  EXPECT_EQ(c.s.DocumentText, "wxyz!");
  EXPECT_EQ(c.platform.busyCount, busy + 1);
  EXPECT_EQ(c.platform.busyDepth, 0);
}

TEST(Html_Clear_Cache_Section, BlanksStretchAndUpTo33BytesOfFollowingWhiteSpace) {
  struct Case {
    std::string page;
    int32_t from, to;
    std::string after;
  };
  const Case cases[] = {
      {"<meta x>\r\n  <p>", 0, 8, std::string(12, '\0') + "<p>"},
      {"ab \t\nc", 2, 2, "ab" + std::string(3, '\0') + "c"},  // start = end: still looks ahead
      {"x" + std::string(40, ' ') + "y", 0, 1, std::string(34, '\0') + std::string(7, ' ') + "y"},
      {"ab   ", 0, 2, std::string(5, '\0')},
      {"a b", -1, 1, "a b"},
      {"a b", 0, -1, "a b"},
  };
  for (const Case& k : cases) {
    SCOPED_TRACE(k.page);
    Cache c;
    c.Put(k.page);
    c.s.DocumentBytes.push_back(' ');  // past DocumentLength: never touched
    Html_Clear_Cache_Section(c.s, k.from, k.to);
    EXPECT_EQ(c.Bytes(), k.after + '\0' + ' ');
  }
}

TEST(Find_String_Filecache, IsCaseSensitiveAndMustEndBeforeTheLastByte) {
  Cache c;
  c.Put("<Head><head>end");
  EXPECT_EQ(Find_String_Filecache(c.s, "<head", 0), 6);
  EXPECT_EQ(Find_String_Filecache(c.s, "", 0), -1);
  EXPECT_EQ(Find_String_Filecache(c.s, "<Head", 1), -1);
  EXPECT_EQ(Find_String_Filecache(c.s, "en", 0), 12);
  EXPECT_EQ(Find_String_Filecache(c.s, "end", 0), -1);
  EXPECT_EQ(Get_String_From_CacheAtPos(c.s, 12, 14), "end");
  EXPECT_THROW(Get_String_From_CacheAtPos(c.s, 0, 99), RunTimeError);
}

struct Scanner : testing::Started {
  explicit Scanner(const std::string& page) {
    Put(page);
    s.ScanEndPosition = s.DocumentLength - 1;
  }
};

TEST(Scan_Tag_List, MatchesWholeOpeningTextsIgnoringCase) {
  Scanner t("");
  const std::pair<const char*, int16_t> kinds[] = {{"<META", 1}, {"<Script", 2}, {"<scripts", 0},
                                                   {"<A", 2},    {"<abbr", 0},   {"<?PHP", 2}};
  for (const auto& [tag, kind] : kinds)
    EXPECT_EQ(Scan_Tag_List(t.s, tag), kind) << tag;
  for (int i = t.s.TagListCount; i <= 500; ++i)
    Add_Tag_Ignore(t.s, "<x", 3);
  EXPECT_THROW(Add_Tag_Ignore(t.s, "<y", 1), RunTimeError);
}

TEST(Find_Close_Of_This_Html_Tag, QuotesShieldTheTagEndOnlyHere) {
  const std::string page = "<meta content=\"a>b\" name=\"x\">text";
  Scanner t(page);
  EXPECT_EQ(Get_This_MetaTags_Variables(t.s, "<meta"), " content=\"a");
  Find_Close_Of_This_Html_Tag(t.s, "<meta");
  EXPECT_EQ(t.s.ScanPosition, static_cast<int32_t>(page.find("text")));

  Scanner u("<p class=\"x>");
  Find_Close_Of_This_Html_Tag(u.s, "<p");
  EXPECT_EQ(u.s.ScanPosition, u.s.ScanEndPosition + 1);
}

TEST(Find_Closing_Html_Tag, MatchesCaseInsensitivelyButStrictly) {
  Scanner t("<Script>x</Script >y</SCRIPT>z");
  EXPECT_EQ(Find_Closing_Html_Tag(t.s, "<Script"), 20);  // not the one with a space
  EXPECT_EQ(t.s.ScanPosition, 29);
  Scanner last("<script>x</script>");  // ends on the last byte
  EXPECT_EQ(Find_Closing_Html_Tag(last.s, "<script"), -1);
  Scanner php("<?php x ?> </?php>.");
  EXPECT_EQ(Find_Closing_Html_Tag(php.s, "<?php"), 11);
}

// Remembered searches must give what a fresh search gives, for every start in a walk.
TEST(Find_Closing_Html_Tag, RememberedSearchesAgreeWithFreshOnes) {
  const std::string page =
      "<a>1</a> <a <script> </a><title>t</title> </A> <a> x </script> <a> tail  ";
  Scanner fresh(page), memo(page);
  const ClosingTagMemoScope scope(memo.s);
  for (const std::string open : {"<a", "<script", "<title"}) {
    for (int32_t p = 0; p < fresh.s.DocumentLength; ++p) {
      fresh.s.ScanPosition = memo.s.ScanPosition = p;
      ASSERT_EQ(Find_Closing_Html_Tag(memo.s, open), Find_Closing_Html_Tag(fresh.s, open))
          << open << " from " << p;
      ASSERT_EQ(memo.s.ScanPosition, fresh.s.ScanPosition);
    }
  }
}

}  // namespace
}  // namespace zentrel::document

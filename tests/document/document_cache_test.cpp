#include "document/document_cache.h"

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
  EXPECT_EQ(Find_String_Filecache(c.s, "<Head", 1), -1);
  EXPECT_EQ(Find_String_Filecache(c.s, "en", 0), 12);
  EXPECT_EQ(Find_String_Filecache(c.s, "end", 0), -1);
  EXPECT_EQ(Get_String_From_CacheAtPos(c.s, 12, 14), "end");
  EXPECT_THROW(Get_String_From_CacheAtPos(c.s, 0, 99), RunTimeError);
}

}  // namespace
}  // namespace zentrel::document

#include "document/document_cache.h"

#include <gtest/gtest.h>

#include "app/app_state.h"
#include "base/file_io.h"
#include "fake_platform.h"
#include "test_files.h"

namespace zentrel::document {
namespace {

using testing::FakePlatform;
using testing::TempFolder;

void Put(AppState& s, const std::string& page) {
  s.DocumentBytes.assign(page.begin(), page.end());
  s.DocumentBytes.push_back(0);
  s.DocumentLength = static_cast<int32_t>(page.size());
}

std::string Bytes(const AppState& s) {
  return std::string(s.DocumentBytes.begin(), s.DocumentBytes.end());
}

TEST(DO_LOAD_File_TO_CACHE, BytesAndTextAreIdenticalWithOneZeroPastTheEnd) {
  FakePlatform platform;
  AppState s(platform);
  TempFolder folder;
  std::string binary;
  for (int i = 0; i < 512; ++i)
    binary.push_back(static_cast<char>(i % 256));
  testing::WriteFile(folder.File("binary.htm"), binary);
  testing::WriteFile(folder.File("empty.htm"), "");
  for (const auto& [path, content] : {std::pair{testing::TestDataPath("decode_page.html"),
                                                testing::ReadTestData("decode_page.html")},
                                      std::pair{folder.File("binary.htm"), binary},
                                      std::pair{folder.File("empty.htm"), std::string()}}) {
    EXPECT_EQ(DO_LOAD_File_TO_CACHE(s, path), static_cast<int32_t>(content.size()));
    EXPECT_EQ(Bytes(s), content + '\0');
    EXPECT_EQ(s.DocumentText, content);
    EXPECT_EQ(s.Form.Html_Document_Editor, content);
  }
  EXPECT_THROW(DO_LOAD_File_TO_CACHE(s, folder.File("missing.htm")), file_io::FileError);
  EXPECT_THROW(DO_LOAD_File_TO_CACHE(s, folder.path().string()), file_io::FileError);
  EXPECT_EQ(s.DocumentBytes.size(), 1u);  // a failed read leaves the cache as it was
}

TEST(Reload_File_From_Memory_TO_Cache, TakesEditedTextWithFourSpareZeros) {
  FakePlatform platform;
  AppState s(platform);
  Put(s, "abc");
  s.DocumentText = s.Form.Html_Document_Editor = "abc";
  EXPECT_EQ(Reload_File_From_Memory_TO_Cache(s), 3);
  EXPECT_EQ(s.DocumentBytes.size(), 4u);
  s.Form.Html_Document_Editor = "wxyz!";
  EXPECT_EQ(Reload_File_From_Memory_TO_Cache(s), 5);
  EXPECT_EQ(Bytes(s), std::string("wxyz!") + std::string(5, '\0'));
  EXPECT_EQ(s.DocumentBytesAllocated, 9);
  EXPECT_EQ(s.DocumentText, "wxyz!");
  EXPECT_EQ(platform.busyCount, 1);
  EXPECT_EQ(platform.busyDepth, 0);
}

TEST(Html_Clear_Cache_Section, BlanksStretchAndUpTo33BytesOfFollowingWhiteSpace) {
  FakePlatform platform;
  AppState s(platform);
  Put(s, "<meta x>\r\n  <p>");
  Html_Clear_Cache_Section(s, 0, 8);
  EXPECT_EQ(Bytes(s), std::string(12, '\0') + "<p>" + '\0');
  Put(s, "ab \t\nc");  // start = end: the look-ahead still runs
  Html_Clear_Cache_Section(s, 2, 2);
  EXPECT_EQ(Bytes(s), "ab" + std::string(3, '\0') + "c" + '\0');
  Put(s, "x" + std::string(40, ' ') + "y");
  Html_Clear_Cache_Section(s, 0, 1);
  EXPECT_EQ(Bytes(s), std::string(34, '\0') + std::string(7, ' ') + "y" + '\0');
  Put(s, "ab   ");
  s.DocumentBytes.push_back(' ');  // past DocumentLength: never touched
  Html_Clear_Cache_Section(s, 0, 2);
  EXPECT_EQ(Bytes(s), std::string(6, '\0') + " ");
  Put(s, "a b");
  Html_Clear_Cache_Section(s, -1, 1);
  Html_Clear_Cache_Section(s, 0, -1);
  EXPECT_EQ(Bytes(s), std::string("a b") + '\0');
}

TEST(Find_String_Filecache, IsCaseSensitiveAndMustEndBeforeTheLastByte) {
  FakePlatform platform;
  AppState s(platform);
  Put(s, "<Head><head>end");
  EXPECT_EQ(Find_String_Filecache(s, "<head", 0), 6);
  EXPECT_EQ(Find_String_Filecache(s, "<Head", 1), -1);
  EXPECT_EQ(Find_String_Filecache(s, "en", 0), 12);
  EXPECT_EQ(Find_String_Filecache(s, "end", 0), -1);
  EXPECT_EQ(Get_String_From_CacheAtPos(s, 12, 14), "end");
  EXPECT_EQ(Get_String_From_CacheAtPos(s, 5, 4), "");
  EXPECT_THROW(Get_String_From_CacheAtPos(s, 0, 99), RunTimeError);
}

}  // namespace
}  // namespace zentrel::document

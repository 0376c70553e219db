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
  s.DocumentText = page;
  s.DocumentLength = static_cast<int32_t>(page.size());
}

std::string Bytes(const AppState& s) {
  return std::string(s.DocumentBytes.begin(), s.DocumentBytes.end());
}

TEST(DO_LOAD_File_TO_CACHE, KeepsBytesAndTextIdenticalWithOneZeroPastTheEnd) {
  FakePlatform platform;
  AppState s(platform);
  const std::string page = testing::ReadTestData("decode_page.html");
  EXPECT_EQ(DO_LOAD_File_TO_CACHE(s, testing::TestDataPath("decode_page.html")),
            static_cast<int32_t>(page.size()));
  EXPECT_EQ(Bytes(s), page + std::string(1, '\0'));
  EXPECT_EQ(s.DocumentText, page);
  EXPECT_EQ(s.Form.Html_Document_Editor, page);

  TempFolder folder;
  std::string binary;
  for (int i = 0; i < 512; ++i)
    binary.push_back(static_cast<char>(i % 256));
  testing::WriteFile(folder.File("binary.bin"), binary);
  EXPECT_EQ(DO_LOAD_File_TO_CACHE(s, folder.File("binary.bin")), 512);
  EXPECT_EQ(Bytes(s), binary + std::string(1, '\0'));
  EXPECT_EQ(s.DocumentText, binary);

  testing::WriteFile(folder.File("empty.html"), "");
  EXPECT_EQ(DO_LOAD_File_TO_CACHE(s, folder.File("empty.html")), 0);
  EXPECT_EQ(s.DocumentBytes, std::vector<uint8_t>(1, 0));
  EXPECT_EQ(s.DocumentText, "");
}

TEST(DO_LOAD_File_TO_CACHE, MissingFileOrFolderThrowsAndLeavesTheCache) {
  FakePlatform platform;
  AppState s(platform);
  Put(s, "<p>kept</p>");
  TempFolder folder;
  EXPECT_THROW(DO_LOAD_File_TO_CACHE(s, folder.File("missing.html")), file_io::FileError);
  EXPECT_THROW(DO_LOAD_File_TO_CACHE(s, folder.path().string()), file_io::FileError);
  EXPECT_EQ(s.DocumentText, "<p>kept</p>");
  EXPECT_EQ(s.DocumentBytes.size(), 12u);
}

TEST(Reload_File_From_Memory_TO_Cache, TakesEditedTextWithFourSpareZeros) {
  FakePlatform platform;
  AppState s(platform);
  Put(s, "abc");
  s.Form.Html_Document_Editor = "abc";
  EXPECT_EQ(Reload_File_From_Memory_TO_Cache(s), 3);
  EXPECT_EQ(platform.busyCount, 0);
  EXPECT_EQ(s.DocumentBytes.size(), 4u);

  s.Form.Html_Document_Editor = "wxyz!";
  EXPECT_EQ(Reload_File_From_Memory_TO_Cache(s), 5);
  EXPECT_EQ(Bytes(s), std::string("wxyz!") + std::string(5, '\0'));
  EXPECT_EQ(s.DocumentBytesAllocated, 9);
  EXPECT_EQ(s.DocumentText, "wxyz!");
  EXPECT_EQ(platform.busyCount, 1);
  EXPECT_EQ(platform.busyDepth, 0);
}

TEST(Html_Clear_Cache_Section, BlanksStretchAndFollowingWhiteSpace) {
  FakePlatform platform;
  AppState s(platform);
  Put(s, "<meta x>\r\n  <p>");
  Html_Clear_Cache_Section(s, 0, 8);
  EXPECT_EQ(Bytes(s), std::string(12, '\0') + "<p>" + std::string(1, '\0'));

  // start = end: nothing in the stretch, yet the look-ahead still runs from end.
  Put(s, "ab \t\nc");
  Html_Clear_Cache_Section(s, 2, 2);
  EXPECT_EQ(Bytes(s), std::string("ab") + std::string(3, '\0') + "c" + std::string(1, '\0'));

  // At most 33 bytes of white space after the stretch.
  Put(s, "x" + std::string(40, ' ') + "y");
  Html_Clear_Cache_Section(s, 0, 1);
  EXPECT_EQ(Bytes(s), std::string(34, '\0') + std::string(7, ' ') + "y" + std::string(1, '\0'));

  // White space up to the last byte: the look-ahead stops at DocumentLength.
  Put(s, "ab   ");
  s.DocumentBytes.push_back(' ');  // a byte past the page that must stay
  Html_Clear_Cache_Section(s, 0, 2);
  EXPECT_EQ(Bytes(s), std::string(5, '\0') + std::string(1, '\0') + " ");

  Put(s, "abc");
  Html_Clear_Cache_Section(s, -1, 2);
  Html_Clear_Cache_Section(s, 1, -1);
  EXPECT_EQ(Bytes(s), std::string("abc") + std::string(1, '\0'));
}

TEST(Find_String_Filecache, IsCaseSensitiveAndMustEndBeforeTheLastByte) {
  FakePlatform platform;
  AppState s(platform);
  Put(s, "<Head><head>end");
  EXPECT_EQ(Find_String_Filecache(s, "<head", 0), 6);
  EXPECT_EQ(Find_String_Filecache(s, "<Head", 1), -1);
  EXPECT_EQ(Find_String_Filecache(s, "en", 0), 12);
  EXPECT_EQ(Find_String_Filecache(s, "end", 0), -1);  // would end on the last byte
  EXPECT_EQ(Find_String_Filecache(s, "", 0), -1);
}

TEST(Get_String_From_Cache, ReadsRangesAndTheNextWord) {
  FakePlatform platform;
  AppState s(platform);
  Put(s, "  \r\nword next");
  EXPECT_EQ(Get_String_From_CacheAtPos(s, 4, 7), "word");
  EXPECT_EQ(Get_String_From_CacheAtPos(s, 5, 4), "");
  EXPECT_THROW(Get_String_From_CacheAtPos(s, 0, 99), RunTimeError);
  s.ScanPosition = 0;
  EXPECT_EQ(Get_String_From_Cache(s), "word");
  EXPECT_EQ(s.ScanPosition, 0);
  s.ScanPosition = 9;
  EXPECT_EQ(Get_String_From_Cache(s), "next");
}

TEST(Strip_Spaces, FoldsLongRunsAndReplacesTheLastCharacter) {
  FakePlatform platform;
  AppState s(platform);
  s.ScanPosition = -5;
  EXPECT_EQ(Strip_Spaces(s, "a\tb  c \r\n d!"), "a b  c d ");
  EXPECT_EQ(s.ScanPosition, 10);
  EXPECT_EQ(Strip_Spaces(s, ""), "");
}

}  // namespace
}  // namespace zentrel::document

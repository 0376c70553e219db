#include "app/preferences.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "app/app_state.h"
#include "app/startup.h"
#include "fake_platform.h"
#include "full_disk.h"
#include "test_files.h"

namespace zentrel::app {
namespace {

using testing::FakePlatform;
using testing::ReadFile;
using testing::TempFolder;
using testing::WriteFile;

struct Prefs {
  TempFolder folder;
  FakePlatform platform;
  AppState s{platform};
  Prefs() { s.ProgramFolder = folder.path().string(); }
  std::string PrefPath() const { return folder.File("Zentrel_Pref.txt"); }
  void Load(const std::string& content) {
    WriteFile(PrefPath(), content);
    LoadPreferencesFile(s);
  }
};

TEST(SavePreferencesFile, WritesEveryEntryInOrder) {
  Prefs p;
  AppState& s = p.s;
  s.KeywordsSortList = -1;
  s.KeywordsRemoveDoubles = 1;
  s.KeywordsForceSameCase = 0;
  s.KeywordsUseMinMatches = 1;
  s.KeywordsMinMatches = 12;
  s.KeywordsMatchScanType = 0;
  s.WordMatchForceCase = 1;
  s.WordMatchIgnoreAlphaNumeric = 0;
  s.DefaultFileExtension = ".html";
  s.DefaultFileTypeIndex = 1;
  s.WordDelimiterChars = "\".,;";
  s.EncodeSwapContentAndNameOrder = 1;
  s.EncodeComaSpaceBetweenKeywords = 0;
  s.DecodeIncludeMetaDescriptionWithBody = 1;
  s.RecentFiles[0] = "/pages/new.html";
  s.RecentFiles[1] = "/pages/old.html";
  s.RecentFileCount = 2;
  s.FilterDictionaryFile = "/dict/mine.txt";
  SavePreferencesFile(s);
  EXPECT_EQ(ReadFile(p.PrefPath()),
            "ProgramTitle:Zentrel\r\n"
            "ProgramVersion:V1.62\r\n"
            "FileLoaded:/pages/old.html\r\n"
            "FileLoaded:/pages/new.html\r\n"
            "Keywords_Sorted:-1\r\n"
            "Keywords_RemoveDuplicates: 1\r\n"
            "Keywords_ForceSameCaseMatching: 0\r\n"
            "Keywords_MinMatches: 1\r\n"
            "Keywords_NumberOfMinMatches: 12\r\n"
            "Keywords_MatchingType: 0\r\n"
            "WordMatch_ForceSameCase: 1\r\n"
            "WordMatch_ForceAlphaNumeric: 0\r\n"
            "FileType:.html\r\n"
            "FileTypeIndex: 1\r\n"
            "StopWordChrs:\".&COMA&;\r\n"
            "SwapContentNameOrder: 1\r\n"
            "KeywordsComaSpace: 0\r\n"
            "IncludeMetaDizzy: 1\r\n"
            "DefaultWordFilterDictionary:/dict/mine.txt\r\n");

  // No recent pages and no default dictionary: neither kind of line is written.
  s.RecentFileCount = 0;
  s.FilterDictionaryFile.clear();
  SavePreferencesFile(s);
  std::string text = ReadFile(p.PrefPath());
  EXPECT_EQ(text.find("FileLoaded:"), std::string::npos);
  EXPECT_EQ(text.find("DefaultWordFilterDictionary:"), std::string::npos);
  EXPECT_NE(text.find("StopWordChrs:"), std::string::npos);
}

TEST(SavePreferencesFile, AFailingWriteKeepsTheOldFile) {
  TempFolder folder;
  FakePlatform platform;
  testing::FullDisk disk;
  AppState s(platform, disk);
  s.ProgramFolder = folder.path().string();
  const std::string path = folder.File("Zentrel_Pref.txt");
  WriteFile(path, "Keywords_Sorted: 0\r\n");
  try {
    SavePreferencesFile(s);
    ADD_FAILURE() << "the failed write was not reported";
  } catch (const file_io::FileError& e) {
    EXPECT_NE(std::string(e.what()).find(path), std::string::npos) << e.what();
  }
  EXPECT_GT(disk.failedWrites, 0);
  EXPECT_EQ(ReadFile(path), "Keywords_Sorted: 0\r\n");
  EXPECT_EQ(testing::EntriesIn(folder.path()), 1u);
}

TEST(LoadPreferencesFile, ReadsValuesTheWayTheyAreWritten) {
  Prefs p;
  AppState& s = p.s;
  s.KeywordsSortList = 1;
  s.WordDelimiterChars = "x";
  p.Load(
      "KeywordsComaSpace: 3\r\n"
      "SwapContentNameOrder:-2\r\n"
      "StopWordChrs:.&COMA&;\r\n"
      "FileLoaded:/pages/a,b.html\r\n"
      "Keywords_NumberOfMinMatches: 2.5\r\n"
      "Keywords_MatchingType: 3.5\r\n"
      "Keywords_RemoveDuplicates:abc\r\n"
      "FileTypeIndex: 70000\r\n"
      "FileType:.txt\r\n"
      "FileType:.html\r\n"
      "ProgramVersion:V9\r\n"
      "Unknown: 5\r\n"
      "no colon here\r\n"
      "DefaultWordFilterDictionary:/dict/mine.txt\n");
  EXPECT_EQ(s.EncodeComaSpaceBetweenKeywords, 1);  // bit 0 of 3
  EXPECT_EQ(s.EncodeSwapContentAndNameOrder, 0);   // bit 0 of -2
  EXPECT_EQ(s.WordDelimiterChars, ".,;");
  ASSERT_EQ(s.RecentFileCount, 1);
  EXPECT_EQ(s.RecentFiles[0], "/pages/a");  // cut at the comma
  EXPECT_EQ(s.KeywordsMinMatches, 2);       // halves round to even
  EXPECT_EQ(s.KeywordsMatchScanType, 4);
  EXPECT_EQ(s.KeywordsRemoveDoubles, 0);  // no number reads as 0
  EXPECT_EQ(s.DefaultFileTypeIndex, 70000);
  EXPECT_EQ(s.DefaultFileExtension, ".html");  // the last occurrence wins
  EXPECT_EQ(s.KeywordsSortList, 1);            // absent: unchanged
  EXPECT_EQ(s.FilterDictionaryFile, "/dict/mine.txt");
  EXPECT_TRUE(p.platform.messages.empty());
}

TEST(LoadPreferencesFile, RecentPagesComeBackNewestFirstAndAtMostFive) {
  Prefs p;
  std::string content;
  for (int i = 1; i <= 6; ++i)
    content += "FileLoaded:/p" + std::to_string(i) + ".html\r\n";
  p.Load(content);
  ASSERT_EQ(p.s.RecentFileCount, 5);
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(p.s.RecentFiles[i], "/p" + std::to_string(6 - i) + ".html");

  // Written back oldest first, so a second read gives the same list.
  SavePreferencesFile(p.s);
  FakePlatform platform2;
  AppState again(platform2);
  again.ProgramFolder = p.s.ProgramFolder;
  LoadPreferencesFile(again);
  EXPECT_EQ(again.RecentFileCount, 5);
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(again.RecentFiles[i], p.s.RecentFiles[i]);
}

TEST(LoadPreferencesFile, AValueTooLargeSkipsItsLineWithOneMessage) {
  Prefs p;
  AppState& s = p.s;
  s.KeywordsMinMatches = 7;
  s.KeywordsSortList = 1;
  p.Load(
      "Keywords_NumberOfMinMatches: 40000\r\n"
      "Keywords_Sorted: 0\r\n"
      "IncludeMetaDizzy: 1e300\r\n"
      "FileTypeIndex: 3\r\n");
  EXPECT_EQ(s.KeywordsMinMatches, 7);
  EXPECT_EQ(s.KeywordsSortList, 0);
  EXPECT_EQ(s.DefaultFileTypeIndex, 3);
  ASSERT_EQ(p.platform.messages.size(), 1u);
  EXPECT_NE(p.platform.messages[0].find(p.PrefPath()), std::string::npos);
  EXPECT_NE(p.platform.messages[0].find("Overflow"), std::string::npos);
}

TEST(LoadPreferencesFile, MissingOrUnreadableFileChangesNothing) {
  Prefs p;
  p.s.KeywordsMinMatches = 9;
  LoadPreferencesFile(p.s);  // no file: silent
  EXPECT_TRUE(p.platform.messages.empty());

  std::filesystem::create_directory(p.PrefPath());
  LoadPreferencesFile(p.s);
  EXPECT_EQ(p.s.KeywordsMinMatches, 9);
  ASSERT_EQ(p.platform.messages.size(), 1u);
  EXPECT_NE(p.platform.messages[0].find(p.PrefPath()), std::string::npos);

  // A given file is read whatever the program folder.
  TempFolder other;
  WriteFile(other.File("my_prefs.txt"), "Keywords_NumberOfMinMatches: 4\r\n");
  LoadPreferencesFile(p.s, other.File("my_prefs.txt"));
  EXPECT_EQ(p.s.KeywordsMinMatches, 4);
}

TEST(SplitPreferenceLine, KeyKeepsItsColon) {
  EXPECT_EQ(SplitPreferenceLine("FileType:.htm"),
            std::make_pair(std::string("FileType:"), std::string(".htm")));
  EXPECT_EQ(SplitPreferenceLine("a:b:c"), std::make_pair(std::string("a:"), std::string("b:c")));
  EXPECT_EQ(SplitPreferenceLine("Key:"), std::make_pair(std::string("Key:"), std::string()));
  EXPECT_EQ(SplitPreferenceLine(":").first, "");
  EXPECT_EQ(SplitPreferenceLine("NoColon").first, "");
}

}  // namespace
}  // namespace zentrel::app

#include "commands/preferences.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fake_platform.h"
#include "full_disk.h"
#include "state/app_state.h"
#include "test_files.h"

namespace zentrel::commands {
namespace {

using testing::ReadFile;

struct Prefs {
  testing::TempFolder folder;
  testing::FakePlatform platform;
  AppState s{platform};
  std::string path = folder.File("Zentrel_Pref.txt");
  Prefs() { s.ProgramFolder = folder.path().string(); }
  void Load(const std::string& content) {
    testing::WriteFile(path, content);
    LoadPreferencesFile(s);
  }
};

TEST(SavePreferencesFile, WritesEveryEntryInOrder) {
  Prefs p;
  AppState& s = p.s;
  s.KeywordsSortList = -1;
  s.KeywordsRemoveDoubles = 1;
  s.KeywordsUseMinMatches = 1;
  s.KeywordsMinMatches = 12;
  s.WordMatchForceCase = 1;
  s.EncodeSwapContentAndNameOrder = 1;
  s.DecodeIncludeMetaDescriptionWithBody = 1;
  s.DefaultFileExtension = ".html";
  s.DefaultFileTypeIndex = 1;
  s.WordDelimiterChars = "\".,;";
  s.RecentFiles[0] = "/pages/new.html";
  s.RecentFiles[1] = "/pages/old.html";
  s.RecentFileCount = 2;
  s.FilterDictionaryFile = "/dict/mine.txt";
  s.SaveShowChanges = 1;
  SavePreferencesFile(s);
  EXPECT_EQ(ReadFile(p.path),
            "ProgramTitle:Zentrel\r\nProgramVersion:V1.62\r\n"
            "FileLoaded:/pages/old.html\r\nFileLoaded:/pages/new.html\r\n"
            "Keywords_Sorted:-1\r\nKeywords_RemoveDuplicates: 1\r\n"
            "Keywords_ForceSameCaseMatching: 0\r\nKeywords_MinMatches: 1\r\n"
            "Keywords_NumberOfMinMatches: 12\r\nKeywords_MatchingType: 0\r\n"
            "WordMatch_ForceSameCase: 1\r\nWordMatch_ForceAlphaNumeric: 0\r\n"
            "FileType:.html\r\nFileTypeIndex: 1\r\nStopWordChrs:\".&COMA&;\r\n"
            "SwapContentNameOrder: 1\r\nKeywordsComaSpace: 0\r\nIncludeMetaDizzy: 1\r\n"
            "DefaultWordFilterDictionary:/dict/mine.txt\r\n"
            "ShowChangesBeforeSaving: 1\r\nKeepBackupOnSave: 0\r\n");

  // No recent pages and no default dictionary: neither kind of line is written.
  s.RecentFileCount = 0;
  s.FilterDictionaryFile.clear();
  SavePreferencesFile(s);
  EXPECT_EQ(ReadFile(p.path).find("FileLoaded:"), std::string::npos);
  EXPECT_EQ(ReadFile(p.path).find("DefaultWordFilterDictionary:"), std::string::npos);
}

TEST(SavePreferencesFile, AFailingWriteKeepsTheOldFile) {
  testing::TempFolder folder;
  testing::FakePlatform platform;
  testing::FullDisk disk;
  AppState s(platform, disk);
  s.ProgramFolder = folder.path().string();
  const std::string path = folder.File("Zentrel_Pref.txt");
  testing::WriteFile(path, "Keywords_Sorted: 0\r\n");
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
  p.Load(
      "KeywordsComaSpace: 3\r\nSwapContentNameOrder:-2\r\nStopWordChrs:.&COMA&;\r\n"
      "FileLoaded:/pages/a,b.html\r\nKeywords_NumberOfMinMatches: 2.5\r\n"
      "Keywords_MatchingType: 3.5\r\nKeywords_RemoveDuplicates:abc\r\nFileTypeIndex: 70000\r\n"
      "FileType:.txt\r\nFileType:.html\r\nUnknown: 5\r\nno colon here\r\n"
      "DefaultWordFilterDictionary:a:b\n");
  EXPECT_EQ(s.EncodeComaSpaceBetweenKeywords, 1);  // bit 0 of 3
  EXPECT_EQ(s.EncodeSwapContentAndNameOrder, 0);   // bit 0 of -2
  EXPECT_EQ(s.WordDelimiterChars, ".,;");
  EXPECT_EQ(s.RecentFiles[0], "/pages/a");  // cut at the comma
  EXPECT_EQ(s.KeywordsMinMatches, 2);       // halves round to even
  EXPECT_EQ(s.KeywordsMatchScanType, 4);
  EXPECT_EQ(s.KeywordsRemoveDoubles, 0);  // no number reads as 0
  EXPECT_EQ(s.DefaultFileTypeIndex, 70000);
  EXPECT_EQ(s.DefaultFileExtension, ".html");  // the last occurrence wins
  EXPECT_EQ(s.KeywordsSortList, 1);            // absent: unchanged
  EXPECT_EQ(s.FilterDictionaryFile, "a:b");
  EXPECT_TRUE(p.platform.messages.empty());
}

TEST(LoadPreferencesFile, AValueTooLargeSkipsItsLineWithOneMessage) {
  Prefs p;
  p.s.KeywordsMinMatches = 7;
  p.Load("Keywords_NumberOfMinMatches: 40000\r\nKeywords_Sorted: 1\r\nIncludeMetaDizzy: 1e300\r\n");
  EXPECT_EQ(p.s.KeywordsMinMatches, 7);
  EXPECT_EQ(p.s.KeywordsSortList, 1);
  ASSERT_EQ(p.platform.messages.size(), 1u);
  EXPECT_NE(p.platform.messages[0].find(p.path), std::string::npos);
  EXPECT_NE(p.platform.messages[0].find("Overflow"), std::string::npos);
}

TEST(LoadPreferencesFile, MissingOrUnreadableFileChangesNothing) {
  Prefs p;
  p.s.KeywordsMinMatches = 9;
  LoadPreferencesFile(p.s);  // no file: silent
  EXPECT_TRUE(p.platform.messages.empty());
  std::filesystem::create_directory(p.path);
  LoadPreferencesFile(p.s);
  EXPECT_EQ(p.s.KeywordsMinMatches, 9);
  EXPECT_EQ(p.platform.messages.size(), 1u);

  // A given file is read whatever the program folder.
  testing::WriteFile(p.folder.File("my_prefs.txt"), "Keywords_NumberOfMinMatches: 4\r\n");
  LoadPreferencesFile(p.s, p.folder.File("my_prefs.txt"));
  EXPECT_EQ(p.s.KeywordsMinMatches, 4);
}

}  // namespace
}  // namespace zentrel::commands

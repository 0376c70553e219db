// Start-up, the preferences file, shut-down and a restart.

#include "commands/startup.h"

#include <gtest/gtest.h>
#include <filesystem>
#include <new>
#include <set>

#include "commands/control_table.h"
#include "commands/preferences.h"
#include "commands/prefs.h"
#include "fake_platform.h"
#include "shell_program_folder.h"
#include "started_program.h"
#include "state/app_state.h"

namespace zentrel::commands {
namespace {

using testing::FakePlatform;
using testing::ReadFile;
using testing::Started;

// Everything the preferences file keeps, as one comparable text.
std::string Kept_Settings(const AppState& s) {
  std::string out;
  for (int16_t v :
       {s.KeywordsSortList, s.KeywordsRemoveDoubles, s.KeywordsForceSameCase,
        s.KeywordsUseMinMatches, s.KeywordsMinMatches, s.KeywordsMatchScanType,
        s.WordMatchForceCase, s.WordMatchIgnoreAlphaNumeric, s.EncodeSwapContentAndNameOrder,
        s.EncodeComaSpaceBetweenKeywords, s.DecodeIncludeMetaDescriptionWithBody})
    out += std::to_string(v) + ";";
  out += s.DefaultFileExtension + ";" + std::to_string(s.DefaultFileTypeIndex) + ";" +
         s.WordDelimiterChars + ";" + s.FilterDictionaryFile + ";";
  for (int i = 0; i < s.RecentFileCount; ++i)
    out += s.RecentFiles[i] + ";";
  return out;
}

TEST(Form_Load, WithoutPreferencesEverySettingIsItsDefault) {
  testing::ShellProgramFolder folder;
  FakePlatform platform(folder.Path() + "/");
  AppState s(platform);
  EXPECT_TRUE(Form_Load(s));
  EXPECT_EQ(s.ProgramFolder, folder.Path());  // one trailing separator dropped
  EXPECT_EQ(s.Form.Caption, "   Zentrel V1.62");
  EXPECT_EQ(Kept_Settings(s), "1;1;1;0;1;1;0;1;0;1;0;.htm;2;\"#=<>^()[]{}/.,;:+-_*&!?@%;;");
  EXPECT_EQ(s.Form.HtmlDecodePref_WordDecodeStopCHR_TextBox, s.WordDelimiterChars);
  EXPECT_EQ(s.Form.KeyWords_MinKeyWordMatches_DropDown.List.size(), 99u);
  EXPECT_EQ(s.Form.KeyWords_MinKeyWordMatches_DropDown.Text, " 1 Match");
  EXPECT_TRUE(platform.messages.empty());
  // No recent pages and no default dictionary: neither kind of line is written.
  SavePreferencesFile(s);
  const std::string saved = ReadFile(folder.File("Zentrel_Pref.txt"));
  EXPECT_EQ(saved.find("FileLoaded:"), std::string::npos);
  EXPECT_EQ(saved.find("DefaultWordFilterDictionary:"), std::string::npos);
}

// A standard dictionary of more words than its 16-bit count holds: the Overflow ends the two
// steps that build the list from it, and the later steps still run.
TEST(Form_Load, AnErrorEndsOnlyTheStepThatRaisedIt) {
  testing::ShellProgramFolder folder;
  for (const char* name : {"Zentrel_Standard.txt", "zentrel_standard.txt"})
    testing::WriteFile(folder.File(std::string("dictionary/") + name),
                       testing::OversizedFilterDictionary());
  testing::WriteFile(folder.File("Zentrel_Pref.txt"), "Keywords_Sorted: 0\r\n");
  FakePlatform platform(folder.Path());
  AppState s(platform);
  EXPECT_FALSE(Form_Load(s));
  EXPECT_EQ(platform.messages, std::vector<std::string>(2, "Run-time error '6': Overflow"));
  EXPECT_EQ(s.KeywordsSortList, 0);
  EXPECT_EQ(s.Form.KeyWords_MinKeyWordMatches_DropDown.List.size(), 99u);
  EXPECT_EQ(s.LetterTable['z'], 1);
}

// CR-only line ends among the others.
TEST(LoadPreferencesFile, ReadsValuesTheWayTheyAreWritten) {
  Started t;
  AppState& s = t.s;
  const std::string path = t.Write(
      "mine.txt",
      "KeywordsComaSpace: 3\rSwapContentNameOrder:-2\r\nStopWordChrs:.&COMA&;\r"
      "FileLoaded:/pages/a,b.html\r\nKeywords_NumberOfMinMatches: 2.5\r\n"
      "Keywords_MatchingType: 3.5\rKeywords_RemoveDuplicates:abc\r\nFileTypeIndex: 70000\r\n"
      "FileType:.txt\r\nFileType:.html\r\nUnknown: 5\r\nno colon here\r\n"
      "DefaultWordFilterDictionary:a:b\n");
  LoadPreferencesFile(s, path);
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
  EXPECT_TRUE(t.platform.messages.empty());

  // A value too large skips its line, with one message naming the file.
  t.Write("mine.txt",
          "Keywords_NumberOfMinMatches: 40000\r\nKeywords_Sorted: 0\r\n"
          "IncludeMetaDizzy: 1e300\r\n");
  LoadPreferencesFile(s, path);
  EXPECT_EQ(s.KeywordsMinMatches, 2);
  EXPECT_EQ(s.KeywordsSortList, 0);
  ASSERT_EQ(t.platform.messages.size(), 1u);
  EXPECT_NE(t.platform.messages[0].find(path), std::string::npos);
  EXPECT_NE(t.platform.messages[0].find("Overflow"), std::string::npos);

  std::filesystem::create_directory(t.folder.File("Zentrel_Pref.txt"));  // unreadable
  LoadPreferencesFile(s);
  EXPECT_EQ(s.KeywordsMinMatches, 2);
  EXPECT_EQ(t.platform.messages.size(), 2u);
}

// Every stored setting away from its default and seven loads (one page twice): the file holds
// them in its order, the five newest pages oldest first, and a restart reads them all back.
TEST(ProgramEnded, RestartKeepsEveryStoredSettingAndTheRecentPages) {
  Started t;
  std::vector<std::string> pages;
  for (char c = 'a'; c <= 'f'; ++c)
    pages.push_back(t.Write(std::string("page_") + c + ".html", "<html>page</html>"));
  pages.push_back(pages[4]);
  for (const std::string& p : pages)
    t.Load(p);
  AppState& s = t.s;
  for (int16_t* flag : {&s.KeywordsSortList, &s.KeywordsRemoveDoubles, &s.KeywordsForceSameCase,
                        &s.KeywordsUseMinMatches, &s.KeywordsMatchScanType, &s.WordMatchForceCase,
                        &s.WordMatchIgnoreAlphaNumeric, &s.EncodeSwapContentAndNameOrder,
                        &s.EncodeComaSpaceBetweenKeywords, &s.DecodeIncludeMetaDescriptionWithBody})
    *flag = static_cast<int16_t>(1 - *flag);
  s.KeywordsMinMatches = 17;
  s.Form.Defaults_Users_FileExtend_DropDown.Text = ".txt";
  t.Click("Defaults_Users_FileExtend_DropDown");
  Set_HtmlDecodePref_WordDecodeStopCHR_TextBox(s, "\".,;<>");
  const std::string mine = t.Write("mine.txt", "zebra\r\nyak\r\n");
  t.platform.AnswerOpen(mine);
  t.Click("WordFiltersPage_SelectDefaultWordDictionary_Button");
  const std::string before = Kept_Settings(s);
  t.Click("mnu_File_Quit");
  EXPECT_TRUE(s.Form.ProgramHasEnded);
  std::string recent;
  for (const std::string& p : {pages[2], pages[3], pages[4], pages[5], pages[4]})
    recent += "FileLoaded:" + p + "\r\n";
  EXPECT_EQ(ReadFile(t.folder.File("Zentrel_Pref.txt")),
            "ProgramTitle:Zentrel\r\nProgramVersion:V1.62\r\n" + recent +
                "Keywords_Sorted: 0\r\nKeywords_RemoveDuplicates: 0\r\n"
                "Keywords_ForceSameCaseMatching: 0\r\nKeywords_MinMatches: 1\r\n"
                "Keywords_NumberOfMinMatches: 17\r\nKeywords_MatchingType: 0\r\n"
                "WordMatch_ForceSameCase: 1\r\nWordMatch_ForceAlphaNumeric: 0\r\n"
                "FileType:.txt\r\nFileTypeIndex: 3\r\nStopWordChrs:\".&COMA&;<>\r\n"
                "SwapContentNameOrder: 1\r\nKeywordsComaSpace: 0\r\nIncludeMetaDizzy: 1\r\n"
                "DefaultWordFilterDictionary:" +
                mine + "\r\nShowChangesBeforeSaving: 1\r\nKeepBackupOnSave: 0\r\n");

  FakePlatform platform(t.folder.Path());
  AppState again(platform);
  Form_Load(again);
  EXPECT_EQ(Kept_Settings(again), before);
  ASSERT_EQ(again.RecentFileCount, 5);
  EXPECT_EQ(again.RecentFiles[0], pages[4]);
  EXPECT_EQ(again.RecentFiles[2], pages[4]);
  EXPECT_EQ(again.RecentFiles[4], pages[2]);
  // The controls show what was read, and the chosen dictionary is the one in use.
  EXPECT_EQ(again.Form.KeyWords_SortList, 0);
  EXPECT_EQ(again.Form.KeyWords_MinKeyWordMatches_DropDown.Text, " 17 Matches");
  EXPECT_EQ(again.Form.HtmlDecodePref_WordDecodeStopCHR_TextBox, "\".,;<>");
  EXPECT_TRUE(again.Form.mnu_file_QuickLoadFile[4].Visible);
  ASSERT_EQ(again.FilterCount, 2);
  EXPECT_EQ(again.FilterWords[0], "yak");
  EXPECT_TRUE(platform.messages.empty());
}

// The minimum picked beside "Remove Keywords With Less Than" is what the file keeps.
TEST(SavePreferencesFile, KeepsTheMinimumMatchesPicked) {
  Started t;
  t.s.Form.KeyWords_MinKeyWordMatches_DropDown.Text = " 7 Matches";
  t.Click("KeyWords_MinKeyWordMatches_DropDown");
  SavePreferencesFile(t.s);
  EXPECT_NE(ReadFile(t.folder.File("Zentrel_Pref.txt")).find("Keywords_NumberOfMinMatches: 7\r\n"),
            std::string::npos);
}

TEST(ProgramEnded, AnUnwritablePreferencesFileIsReportedAndTheProgramStillEnds) {
  FakePlatform platform;
  AppState s(platform);
  s.ProgramFolder = "/nonexistent-zentrel-folder/sub";
  ProgramEnded(s);
  EXPECT_TRUE(s.Form.ProgramHasEnded);
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_NE(platform.messages[0].find("Zentrel_Pref.txt"), std::string::npos);
}

using testing::CancellingPlatform;

TEST(Dispatch, EveryControlRunsOnAFreshlyStartedProgram) {
  testing::ShellProgramFolder folder;
  CancellingPlatform platform(folder.Path());
  AppState s(platform);
  Form_Load(s);
  std::set<std::string> names;
  for (const Control& c : Control_Table()) {
    EXPECT_TRUE(names.insert(c.Name).second) << "duplicate control " << c.Name;
    EXPECT_TRUE(Dispatch(s, c.Name)) << c.Name;
    EXPECT_EQ(platform.busyDepth, 0) << c.Name;
  }
  EXPECT_TRUE(names.count("mnu_file_QuickLoadFile5"));
  EXPECT_TRUE(s.Form.ProgramHasEnded);  // "&Quit" was among them
  EXPECT_FALSE(Dispatch(s, "No_Such_Control"));
  EXPECT_FALSE(Dispatch(s, "command1"));  // names are case-sensitive
}

TEST(Run_Guarded, AnErrorEndsTheCommandAndIsShownOnce) {
  testing::FakePlatform platform;
  AppState s(platform);
  EXPECT_EQ(Run_Guarded(s, [](AppState&) {}), std::nullopt);
  EXPECT_EQ(Run_Guarded(s, [](AppState&) { throw std::bad_alloc(); }),
            "Run-time error '7': Out of memory");
  EXPECT_EQ(platform.messages, std::vector<std::string>{"Run-time error '7': Out of memory"});
}

}  // namespace
}  // namespace zentrel::commands

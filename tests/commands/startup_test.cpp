// Start-up, shut-down and a restart: what the preferences file carries across.

#include "commands/startup.h"

#include <gtest/gtest.h>

#include "commands/control_table.h"
#include "commands/page_loading.h"
#include "commands/prefs.h"
#include "commands/scan_keywords.h"
#include "fake_platform.h"
#include "shell_program_folder.h"
#include "state/app_state.h"
#include "test_files.h"

namespace zentrel::commands {
namespace {

using testing::FakePlatform;
using testing::ShellProgramFolder;

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
  ShellProgramFolder folder;
  FakePlatform platform(folder.Path() + "/");
  AppState s(platform);
  EXPECT_TRUE(Form_Load(s));
  EXPECT_EQ(s.ProgramFolder, folder.Path());  // one trailing separator dropped
  EXPECT_EQ(s.Form.Caption, "   Zentrel V1.62");
  EXPECT_EQ(Kept_Settings(s), "1;1;1;0;1;1;0;1;0;1;0;.htm;2;\"#=<>^()[]{}/.,;:+-_*&!?@%;;");
  EXPECT_EQ(s.Form.HtmlDecodePref_WordDecodeStopCHR_TextBox, s.WordDelimiterChars);
  const state::DropDown& minMatches = s.Form.KeyWords_MinKeyWordMatches_DropDown;
  ASSERT_EQ(minMatches.List.size(), 99u);
  EXPECT_EQ(minMatches.List[98], " 99 Matches");
  EXPECT_EQ(minMatches.Text, " 1 Match");
  EXPECT_TRUE(platform.messages.empty());
}

// A standard dictionary of more words than its 16-bit count holds: the Overflow ends the two
// steps that build the list from it, and the later steps still run.
TEST(Form_Load, AnErrorEndsOnlyTheStepThatRaisedIt) {
  ShellProgramFolder folder;
  for (const char* name : {"Zentrel_Standard.txt", "zentrel_standard.txt"}) {
    testing::WriteFile(folder.File(std::string("dictionary/") + name),
                       testing::OversizedFilterDictionary());
  }
  testing::WriteFile(folder.File("Zentrel_Pref.txt"), "Keywords_Sorted: 0\r\n");
  FakePlatform platform(folder.Path());
  AppState s(platform);
  EXPECT_FALSE(Form_Load(s));
  EXPECT_EQ(platform.messages, std::vector<std::string>(2, "Run-time error '6': Overflow"));
  EXPECT_EQ(s.KeywordsSortList, 0);
  EXPECT_EQ(s.Form.KeyWords_MinKeyWordMatches_DropDown.List.size(), 99u);
  EXPECT_EQ(s.LetterTable['z'], 1);
}

// Seven loads (one page twice) leave the five newest, the repeat listed again.
TEST(ProgramEnded, RestartKeepsEveryStoredSettingAndTheRecentPages) {
  ShellProgramFolder folder;
  std::vector<std::string> pages;
  for (char c = 'a'; c <= 'f'; ++c) {
    pages.push_back(folder.File(std::string("page_") + c + ".html"));
    testing::WriteFile(pages.back(), testing::ReadTestData("shell_page.html"));
  }
  pages.push_back(pages[4]);
  testing::WriteFile(folder.File("mine.txt"), "zebra\r\nyak\r\n");

  std::string before;
  {
    FakePlatform platform(folder.Path());
    AppState s(platform);
    Form_Load(s);
    for (const std::string& p : pages) {
      platform.AnswerOpen(p);
      Command1_Click(s);
    }
    // Every stored setting away from its default.
    for (int16_t* flag :
         {&s.KeywordsSortList, &s.KeywordsRemoveDoubles, &s.KeywordsForceSameCase,
          &s.KeywordsUseMinMatches, &s.KeywordsMatchScanType, &s.WordMatchForceCase,
          &s.WordMatchIgnoreAlphaNumeric, &s.EncodeSwapContentAndNameOrder,
          &s.EncodeComaSpaceBetweenKeywords, &s.DecodeIncludeMetaDescriptionWithBody})
      *flag = static_cast<int16_t>(1 - *flag);
    s.KeywordsMinMatches = 17;
    s.Form.Defaults_Users_FileExtend_DropDown.Text = ".txt";
    ASSERT_TRUE(Dispatch(s, "Defaults_Users_FileExtend_DropDown"));
    commands::Set_HtmlDecodePref_WordDecodeStopCHR_TextBox(s, "\".,;<>");
    platform.AnswerOpen(folder.File("mine.txt"));
    ASSERT_TRUE(Dispatch(s, "WordFiltersPage_SelectDefaultWordDictionary_Button"));
    before = Kept_Settings(s);
    ASSERT_TRUE(Dispatch(s, "mnu_File_Quit"));
    EXPECT_TRUE(s.Form.ProgramHasEnded);
  }

  FakePlatform platform(folder.Path());
  AppState s(platform);
  Form_Load(s);
  EXPECT_EQ(Kept_Settings(s), before);
  ASSERT_EQ(s.RecentFileCount, 5);
  EXPECT_EQ(s.RecentFiles[0], pages[4]);
  EXPECT_EQ(s.RecentFiles[2], pages[4]);
  EXPECT_EQ(s.RecentFiles[4], pages[2]);
  // The controls show what was read, and the chosen dictionary is the one in use.
  EXPECT_EQ(s.Form.KeyWords_SortList, 0);
  EXPECT_EQ(s.Form.KeyWords_MinKeyWordMatches_DropDown.Text, " 17 Matches");
  EXPECT_EQ(s.Form.HtmlDecodePref_WordDecodeStopCHR_TextBox, "\".,;<>");
  EXPECT_TRUE(s.Form.mnu_file_QuickLoadFile[4].Visible);
  ASSERT_EQ(s.FilterCount, 2);
  EXPECT_EQ(s.FilterWords[0], "yak");
  EXPECT_TRUE(platform.messages.empty());
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

}  // namespace
}  // namespace zentrel::commands

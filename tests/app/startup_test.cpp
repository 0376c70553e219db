// Start-up, shut-down and a restart: what the preferences file carries across.

#include "app/startup.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/app_state.h"
#include "app/control_table.h"
#include "app/page_loading.h"
#include "app/preferences.h"
#include "fake_platform.h"
#include "shell_program_folder.h"
#include "test_files.h"
#include "words/dictionary_commands.h"

namespace zentrel::app {
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
  out += std::to_string(s.RecentFileCount) + ";";
  for (int i = 0; i < s.RecentFileCount; ++i)
    out += s.RecentFiles[i] + ";";
  return out;
}

// The check boxes whose settings the preferences file keeps.
struct StoredBox {
  const char* Name;
  int16_t FormModel::*Field;
};
const StoredBox kStoredBoxes[] = {
    {"KeyWords_SortList", &FormModel::KeyWords_SortList},
    {"KeyWords_RemoveDoubleKeyWordListings", &FormModel::KeyWords_RemoveDoubleKeyWordListings},
    {"KeyWords_ForceSameCaseMatching", &FormModel::KeyWords_ForceSameCaseMatching},
    {"KeyWords_MinKeyWordMatches_Option", &FormModel::KeyWords_MinKeyWordMatches_Option},
    {"KeyWords_MatchScanType_CheckBOx", &FormModel::KeyWords_MatchScanType_CheckBOx},
    {"WordMatch_ForceCase", &FormModel::WordMatch_ForceCase},
    {"WordMatch_IgnoreAlphaNumericWords", &FormModel::WordMatch_IgnoreAlphaNumericWords},
    {"HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox",
     &FormModel::HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox},
};

void Load_Page(AppState& s, FakePlatform& platform, const std::string& path) {
  platform.AnswerOpen(path);
  Command1_Click(s);
}

TEST(Form_Load, WithoutPreferencesEverySettingIsItsDefault) {
  ShellProgramFolder folder;
  FakePlatform platform(folder.Path() + "/");
  AppState s(platform);
  Form_Load(s);
  EXPECT_EQ(s.ProgramFolder, folder.Path());  // one trailing separator dropped
  EXPECT_EQ(s.Form.Caption, "   Zentrel V1.62");
  EXPECT_EQ(s.WordMatchForceCase, 0);
  EXPECT_EQ(s.KeywordsMinMatches, 1);
  EXPECT_EQ(s.EncodeComaSpaceBetweenKeywords, 1);
  EXPECT_EQ(s.DefaultFileExtension, ".htm");
  EXPECT_EQ(s.DefaultFileTypeIndex, 2);
  EXPECT_EQ(s.WordDelimiterChars, "\"#=<>^()[]{}/.,;:+-_*&!?@%");
  EXPECT_EQ(s.Form.HtmlDecodePref_WordDecodeStopCHR_TextBox, s.WordDelimiterChars);
  EXPECT_EQ(s.RecentFileCount, 0);
  const DropDown& minMatches = s.Form.KeyWords_MinKeyWordMatches_DropDown;
  ASSERT_EQ(minMatches.List.size(), 99u);
  EXPECT_EQ(minMatches.List[0], " 1 Match");
  EXPECT_EQ(minMatches.List[98], " 99 Matches");
  EXPECT_EQ(minMatches.Text, " 1 Match");
  EXPECT_TRUE(platform.messages.empty());
}

TEST(ProgramEnded, RestartKeepsEveryStoredSettingAndTheRecentPages) {
  ShellProgramFolder folder;
  std::string page = testing::ReadTestData("shell_page.html");
  std::vector<std::string> pages;
  for (char c = 'a'; c <= 'f'; ++c) {
    pages.push_back(folder.File(std::string("page_") + c + ".html"));
    testing::WriteFile(pages.back(), page);
  }
  testing::WriteFile(folder.File("mine.txt"), "zebra\r\nyak\r\n");

  std::string before;
  {
    FakePlatform platform(folder.Path());
    AppState s(platform);
    Form_Load(s);
    for (const std::string& p : pages)
      Load_Page(s, platform, p);
    // Every stored setting away from its default, through its own control.
    for (const StoredBox& box : kStoredBoxes) {
      s.Form.*box.Field = static_cast<int16_t>(1 - s.Form.*box.Field);
      ASSERT_TRUE(Dispatch(s, box.Name));
    }
    s.KeywordsMinMatches = 17;
    s.EncodeSwapContentAndNameOrder = 1;
    s.EncodeComaSpaceBetweenKeywords = 0;
    s.Form.Defaults_Users_FileExtend_DropDown.Text = ".txt";
    ASSERT_TRUE(Dispatch(s, "Defaults_Users_FileExtend_DropDown"));
    words::Set_HtmlDecodePref_WordDecodeStopCHR_TextBox(s, "\".,;<>");
    platform.AnswerOpen(folder.File("mine.txt"));
    ASSERT_TRUE(Dispatch(s, "WordFiltersPage_SelectDefaultWordDictionary_Button"));
    before = Kept_Settings(s);
    ASSERT_TRUE(Dispatch(s, "mnu_File_Quit"));
    EXPECT_TRUE(s.Form.ProgramHasEnded);
    EXPECT_TRUE(platform.messages.empty());
  }

  FakePlatform platform(folder.Path());
  AppState s(platform);
  Form_Load(s);
  EXPECT_EQ(Kept_Settings(s), before);
  ASSERT_EQ(s.RecentFileCount, 5);
  EXPECT_EQ(s.RecentFiles[0], pages[5]);
  EXPECT_EQ(s.RecentFiles[4], pages[1]);
  EXPECT_EQ(s.KeywordsSortList, 0);
  EXPECT_EQ(s.WordMatchForceCase, 1);
  EXPECT_EQ(s.DefaultFileTypeIndex, 3);
  EXPECT_EQ(s.FilterDictionaryFile, folder.File("mine.txt"));
  // The controls show what was read, and the chosen dictionary is the one in use.
  EXPECT_EQ(s.Form.KeyWords_SortList, 0);
  EXPECT_EQ(s.Form.WordMatch_ForceCase, 1);
  EXPECT_EQ(s.Form.KeyWords_MinKeyWordMatches_DropDown.Text, " 17 Matches");
  EXPECT_EQ(s.Form.HtmlDecodePref_WordDecodeStopCHR_TextBox, "\".,;<>");
  EXPECT_TRUE(s.Form.mnu_file_QuickLoadFile[4].Visible);
  ASSERT_EQ(s.FilterCount, 2);
  EXPECT_EQ(s.FilterWords[0], "yak");
  EXPECT_EQ(s.FilterWords[1], "zebra");
  EXPECT_TRUE(platform.messages.empty());
}

TEST(ProgramEnded, RestartShowsARepeatedPageEachTime) {
  ShellProgramFolder folder;
  std::string a = folder.File("a.html"), b = folder.File("b.html");
  testing::WriteFile(a, testing::ReadTestData("shell_page.html"));
  testing::WriteFile(b, testing::ReadTestData("shell_page.html"));
  {
    FakePlatform platform(folder.Path());
    AppState s(platform);
    Form_Load(s);
    Load_Page(s, platform, a);
    Load_Page(s, platform, b);
    Load_Page(s, platform, a);
    ProgramEnded(s);
  }
  FakePlatform platform(folder.Path());
  AppState s(platform);
  Form_Load(s);
  ASSERT_EQ(s.RecentFileCount, 3);
  EXPECT_EQ(s.RecentFiles[0], a);
  EXPECT_EQ(s.RecentFiles[1], b);
  EXPECT_EQ(s.RecentFiles[2], a);
  EXPECT_FALSE(s.Form.mnu_file_QuickLoadFile[3].Visible);
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
}  // namespace zentrel::app

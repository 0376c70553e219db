// The "Prefs" tab: filter dictionary buttons, check boxes, delimiters, file extension.

#include "words/dictionary_commands.h"

#include <gtest/gtest.h>

#include <vector>

#include "../app/shell_program_folder.h"
#include "app/app_state.h"
#include "app/control_table.h"
#include "app/startup.h"
#include "base/text.h"
#include "fake_platform.h"
#include "full_disk.h"
#include "test_files.h"
#include "words/filter_dictionary.h"

namespace zentrel::words {
namespace {

using testing::FakePlatform;
using testing::ReadFile;
using testing::WriteFile;

const char* const kFilter = "(*.txt)|*.txt|";

struct Prefs {
  testing::ShellProgramFolder folder;
  FakePlatform platform{folder.Path()};
  AppState s{platform};

  Prefs() { app::Form_Load(s); }
  std::vector<std::string> Words() const {
    return {s.FilterWords.begin(), s.FilterWords.begin() + s.FilterCount};
  }
  void Click(const char* name) { ASSERT_TRUE(app::Dispatch(s, name)); }
  // Sets the dictionary box and rebuilds the list from it.
  void Use(const std::string& box) {
    s.Form.WordFiltersPage_WordDictionary = box;
    Click("EditWordFilters_ResortUpdateFilters");
  }
};

using Words = std::vector<std::string>;

TEST(EditWordFilters_ClearDictionary_Click, OnlyYesClears) {
  Prefs p;
  p.Use("the\r\nand\r\nof\r\n");
  std::string box = p.s.Form.WordFiltersPage_WordDictionary;
  p.platform.AnswerNo();
  p.Click("EditWordFilters_ClearDictionary");
  EXPECT_EQ(p.platform.questions.back(), "WARNING: WARNING - Clear Filters ? Are you sure ?");
  EXPECT_EQ(p.s.Form.WordFiltersPage_WordDictionary, box);
  EXPECT_EQ(p.Words(), (Words{"and", "of", "the"}));

  p.platform.AnswerYes();
  p.Click("EditWordFilters_ClearDictionary");
  EXPECT_EQ(p.s.Form.WordFiltersPage_WordDictionary, "");
  EXPECT_EQ(p.s.FilterCount, 0);
}

TEST(EditWordFilters_MergeDictionary_Click, AddsTheFileToTheWordsInUse) {
  Prefs p;
  p.Use("the\r\nand\r\n");
  WriteFile(p.folder.File("zoo.txt"), "zebra\r\n");
  p.platform.AnswerOpen(p.folder.File("zoo.txt"));
  p.Click("EditWordFilters_MergeDictionary");
  EXPECT_EQ(p.Words(), (Words{"and", "the", "zebra"}));
  const app::FileDialog& shown = p.platform.dialogs.back();
  EXPECT_EQ(shown.Filter, kFilter);
  EXPECT_EQ(shown.FilterIndex, 1);
  EXPECT_EQ(shown.DefaultExt, ".txt");
  EXPECT_EQ(shown.FileName, "");
}

TEST(EditWordFilters_SAVE_Click, AlwaysWritesTheStandardDictionary) {
  Prefs p;
  const std::string standard = Standard_Dictionary_Path(p.s);
  WriteFile(p.folder.File("mine.txt"), "mine\r\nours\r\n");
  p.platform.AnswerOpen(p.folder.File("mine.txt"));
  p.Click("EditWordFilters_LoadDictionary");
  EXPECT_EQ(p.s.Form.WordFiltersPage_CurrentWordDictionary_Text, p.folder.File("mine.txt"));
  EXPECT_EQ(p.Words(), (Words{"mine", "ours"}));

  // A user file is current: no question, and the standard file receives the words.
  p.s.Form.WordFiltersPage_WordDictionary += "cat\r\n";
  p.Click("EditWordFilters_SAVE");
  EXPECT_TRUE(p.platform.questions.empty());
  EXPECT_EQ(ReadFile(standard).rfind("cat\r\nmine\r\nours\r\n", 0), 0u);
  EXPECT_EQ(ReadFile(p.folder.File("mine.txt")), "mine\r\nours\r\n");

  // The standard one is current: overwriting it needs a Yes.
  p.s.Form.WordFiltersPage_CurrentWordDictionary_Text = text::UCase(standard);
  std::string saved = ReadFile(standard);
  p.s.Form.WordFiltersPage_WordDictionary = "dog\r\n";
  p.platform.AnswerNo();
  p.Click("EditWordFilters_SAVE");
  EXPECT_EQ(p.platform.questions.back(),
            "WARNING: WARNING - Overwrite Zentrel Default Filter Dictionary ? Are you sure ?");
  EXPECT_EQ(ReadFile(standard), saved);
  EXPECT_EQ(p.s.Form.WordFiltersPage_WordDictionary, "dog\r\n");  // not even rebuilt
}

TEST(EditWordFilters_SAVEAS_Click, WritesTheChosenFileAndMakesItCurrent) {
  Prefs p;
  p.Use("b\r\na\r\n");
  std::string target = p.folder.File("saved.txt");
  p.platform.AnswerSave(target);
  p.Click("EditWordFilters_SAVEAS");
  EXPECT_EQ(ReadFile(target).rfind("a\r\nb\r\n", 0), 0u);
  EXPECT_EQ(p.s.Form.WordFiltersPage_CurrentWordDictionary_Text, target);
  EXPECT_EQ(p.platform.dialogs.back().Filter, kFilter);

  const std::string standard = Standard_Dictionary_Path(p.s);
  std::string before = ReadFile(standard);
  p.platform.AnswerSave(standard);
  p.platform.AnswerNo();
  p.Click("EditWordFilters_SAVEAS");
  EXPECT_EQ(ReadFile(standard), before);
  EXPECT_EQ(p.s.Form.WordFiltersPage_CurrentWordDictionary_Text, target);
}

// Both saves of the dictionary keep the old file whole when the write fails; "Save As" then
// leaves the current dictionary as it was.
TEST(EditWordFilters_SAVEAS_Click, AFailingWriteKeepsTheOldFileAndTheCurrentName) {
  testing::ShellProgramFolder folder;
  FakePlatform platform{folder.Path()};
  testing::FullDisk disk;
  AppState s(platform, disk);
  app::Form_Load(s);
  s.Form.WordFiltersPage_WordDictionary = "b\r\na\r\n";
  const std::string current = s.Form.WordFiltersPage_CurrentWordDictionary_Text;
  const std::string target = folder.File("saved.txt");
  WriteFile(target, "old words\r\n");
  platform.AnswerSave(target);
  EXPECT_THROW(EditWordFilters_SAVEAS_Click(s), file_io::FileError);
  EXPECT_EQ(ReadFile(target), "old words\r\n");
  EXPECT_EQ(s.Form.WordFiltersPage_CurrentWordDictionary_Text, current);

  const std::string standard = Standard_Dictionary_Path(s);
  const std::string before = ReadFile(standard);
  s.Form.WordFiltersPage_CurrentWordDictionary_Text = target;  // no question for another file
  EXPECT_THROW(EditWordFilters_SAVE_Click(s), file_io::FileError);
  EXPECT_EQ(ReadFile(standard), before);
  EXPECT_EQ(disk.failedWrites, 2);
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path()))
    EXPECT_EQ(entry.path().filename().string().find(".zentrel-"), std::string::npos)
        << entry.path();
}

TEST(WordFiltersPage_ResetDefaultWordDictionary_Button_Click, KeepsTheWordsInUse) {
  Prefs p;
  WriteFile(p.folder.File("mine.txt"), "mine\r\nours\r\n");
  p.platform.AnswerOpen(p.folder.File("mine.txt"));
  p.Click("WordFiltersPage_SelectDefaultWordDictionary_Button");
  EXPECT_EQ(p.s.FilterDictionaryFile, p.folder.File("mine.txt"));
  EXPECT_EQ(p.s.Form.WordFiltersPage_SelectDefaultWordDictionary_Text, p.folder.File("mine.txt"));
  EXPECT_EQ(p.s.Form.WordFiltersPage_CurrentWordDictionary_Text, p.folder.File("mine.txt"));
  EXPECT_EQ(p.Words(), (Words{"mine", "ours"}));

  p.Click("WordFiltersPage_ResetDefaultWordDictionary_Button");
  EXPECT_EQ(p.s.FilterDictionaryFile, "");
  EXPECT_EQ(p.s.Form.WordFiltersPage_SelectDefaultWordDictionary_Text, "");
  EXPECT_EQ(p.Words(), (Words{"mine", "ours"}));
}

TEST(Command9_Click, RestoresTheStandardWordsOnYes) {
  Prefs p;
  const Words standard = p.Words();
  ASSERT_FALSE(standard.empty());
  p.Use("x1\r\nx2\r\n");
  p.platform.AnswerNo();
  p.Click("Command9");
  EXPECT_EQ(p.platform.questions.back(),
            "WARNING: WARNING - Restore Filter Dictionary ? Are you sure ?");
  EXPECT_EQ(p.Words(), (Words{"x1", "x2"}));
  p.platform.AnswerYes();
  p.Click("Command9");
  EXPECT_EQ(p.Words(), standard);
}

TEST(EditWordFilters, CancelledDialogsChangeNothing) {
  Prefs p;
  p.Use("one\r\ntwo\r\n");
  p.s.Form.WordFiltersPage_CurrentWordDictionary_Text = "current";
  p.s.FilterDictionaryFile = "default";
  for (const char* button :
       {"EditWordFilters_MergeDictionary", "EditWordFilters_LoadDictionary",
        "EditWordFilters_SAVEAS", "WordFiltersPage_SelectDefaultWordDictionary_Button"}) {
    p.platform.CancelDialog();
    p.Click(button);
    EXPECT_EQ(p.s.Form.WordFiltersPage_WordDictionary, "one\r\ntwo\r\n") << button;
    EXPECT_EQ(p.Words(), (Words{"one", "two"})) << button;
    EXPECT_EQ(p.s.Form.WordFiltersPage_CurrentWordDictionary_Text, "current") << button;
    EXPECT_EQ(p.s.FilterDictionaryFile, "default") << button;
  }
  EXPECT_TRUE(p.platform.questions.empty());
  EXPECT_TRUE(p.platform.messages.empty());
}

TEST(Prefs_CheckBoxes, EachClickCopiesItsBoxIntoItsSetting) {
  struct Pair {
    const char* Name;
    int16_t app::FormModel::*Box;
    int16_t app::ShellFields::*Setting;
  };
  using F = app::FormModel;
  using S = app::ShellFields;
  const Pair pairs[] = {
      {"HtmlDecodePref_IncludeTitleWithBody_CheckBox",
       &F::HtmlDecodePref_IncludeTitleWithBody_CheckBox, &S::DecodeIncludeTitleWithBody},
      {"HtmlDecodePref_IncludeALTTEXT_CheckBox", &F::HtmlDecodePref_IncludeALTTEXT_CheckBox,
       &S::DecodeIncludeAltText},
      {"HtmlDecodePref_IncludeBODYTEXT_CheckBox", &F::HtmlDecodePref_IncludeBODYTEXT_CheckBox,
       &S::DecodeIncludeBodyText},
      {"HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox",
       &F::HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox,
       &S::DecodeIncludeMetaDescriptionWithBody},
      {"WordMatch_ForceCase", &F::WordMatch_ForceCase, &S::WordMatchForceCase},
      {"WordMatch_IgnoreAlphaNumericWords", &F::WordMatch_IgnoreAlphaNumericWords,
       &S::WordMatchIgnoreAlphaNumeric},
      {"KeyWords_ForceSameCaseMatching", &F::KeyWords_ForceSameCaseMatching,
       &S::KeywordsForceSameCase},
      {"KeyWords_MatchScanType_CheckBOx", &F::KeyWords_MatchScanType_CheckBOx,
       &S::KeywordsMatchScanType},
      {"KeyWordMatch_Disable_Part_Keyword_Matches", &F::KeyWordMatch_Disable_Part_Keyword_Matches,
       &S::KeywordsDisablePartMatches},
      {"KeyWords_RemoveDoubleKeyWordListings", &F::KeyWords_RemoveDoubleKeyWordListings,
       &S::KeywordsRemoveDoubles},
      {"KeyWords_SortList", &F::KeyWords_SortList, &S::KeywordsSortList},
      {"KeyWords_MinKeyWordMatches_Option", &F::KeyWords_MinKeyWordMatches_Option,
       &S::KeywordsUseMinMatches},
  };
  FakePlatform platform;
  AppState s(platform);
  for (int16_t value : {int16_t{1}, int16_t{0}}) {
    for (const Pair& pair : pairs) {
      s.Form.*pair.Box = value;
      ASSERT_TRUE(app::Dispatch(s, pair.Name));
      // Only its own setting follows: every other pair still shows the previous round.
      for (const Pair& other : pairs)
        EXPECT_EQ(s.*other.Setting, s.Form.*other.Box) << pair.Name << " / " << other.Name;
    }
  }
}

TEST(Defaults_Users_FileExtend_DropDown_Click, KnownExtensionsOnly) {
  FakePlatform platform;
  AppState s(platform);
  auto pick = [&](const std::string& text) {
    s.Form.Defaults_Users_FileExtend_DropDown.Text = text;
    Defaults_Users_FileExtend_DropDown_Click(s);
    return s.DefaultFileExtension + std::to_string(s.DefaultFileTypeIndex);
  };
  EXPECT_EQ(pick(".html"), ".html1");
  EXPECT_EQ(pick(".txt"), ".txt3");
  EXPECT_EQ(pick(".htm"), ".htm2");
  EXPECT_EQ(pick(".HTML"), ".htm2");
  EXPECT_EQ(pick(""), ".htm2");
}

TEST(HtmlDecodePref_WordDecodeStopCHR, TheBoxDrivesTheDelimitersAndDefaultsRestoreThem) {
  FakePlatform platform;
  AppState s(platform);
  Set_HtmlDecodePref_WordDecodeStopCHR_TextBox(s, ".,");
  EXPECT_EQ(s.WordDelimiterChars, ".,");
  s.Form.HtmlDecodePref_WordDecodeStopCHR_TextBox = ";";
  HtmlDecodePref_WordDecodeStopCHR_TextBox_Change(s);
  EXPECT_EQ(s.WordDelimiterChars, ";");
  ASSERT_TRUE(app::Dispatch(s, "HtmlDecodePref_WordDecodeStopCHR_Button"));
  EXPECT_EQ(s.WordDelimiterChars, "\"#=<>^()[]{}/.,;:+-_*&!?@%");
  EXPECT_EQ(s.Form.HtmlDecodePref_WordDecodeStopCHR_TextBox, s.WordDelimiterChars);
}

}  // namespace
}  // namespace zentrel::words

// The "Prefs" tab: filter dictionary buttons, check boxes, delimiters, file extension.

#include "commands/prefs.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "commands/control_table.h"
#include "commands/startup.h"
#include "fake_platform.h"
#include "full_disk.h"
#include "shell_program_folder.h"
#include "state/app_state.h"
#include "test_files.h"
#include "words/filter_dictionary.h"

namespace zentrel::commands {
namespace {

using testing::ReadFile;
using testing::WriteFile;
using Words = std::vector<std::string>;

struct Prefs {
  testing::ShellProgramFolder folder;
  testing::FakePlatform platform{folder.Path()};
  AppState s{platform};
  std::string standard;

  Prefs() {
    commands::Form_Load(s);
    standard = words::Standard_Dictionary_Path(s);
  }
  Words List() const { return {s.FilterWords.begin(), s.FilterWords.begin() + s.FilterCount}; }
  void Click(const char* name) { ASSERT_TRUE(commands::Dispatch(s, name)); }
  // Sets the dictionary box and rebuilds the list from it.
  void Use(const std::string& box) {
    s.Form.WordFiltersPage_WordDictionary = box;
    Click("EditWordFilters_ResortUpdateFilters");
  }
  std::string File(const std::string& name, const std::string& bytes) {
    WriteFile(folder.File(name), bytes);
    return folder.File(name);
  }
};

TEST(EditWordFilters, QuestionsAskedAndNoChangesNothing) {
  struct Case {
    const char* button;
    const char* question;
  };
  const Case cases[] = {
      {"EditWordFilters_ClearDictionary", "Clear Filters"},
      {"Command9", "Restore Filter Dictionary"},
      {"EditWordFilters_SAVE", "Overwrite Zentrel Default Filter Dictionary"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.button);
    Prefs p;
    p.Use("the\r\nand\r\n");
    p.s.Form.WordFiltersPage_WordDictionary = "the\r\nand\r\n";  // as typed, not yet sorted
    // Compared without regard to case, the standard dictionary is the current one.
    p.s.Form.WordFiltersPage_CurrentWordDictionary_Text = text::UCase(p.standard);
    const std::string saved = ReadFile(p.standard);
    p.platform.AnswerNo();
    p.Click(c.button);
    EXPECT_EQ(p.platform.questions.back(),
              std::string("WARNING: WARNING - ") + c.question + " ? Are you sure ?");
    EXPECT_EQ(p.s.Form.WordFiltersPage_WordDictionary, "the\r\nand\r\n");
    EXPECT_EQ(p.List(), (Words{"and", "the"}));
    EXPECT_EQ(ReadFile(p.standard), saved);
  }
}

TEST(EditWordFilters_ClearDictionary_Click, YesClearsAndDefaultsRestore) {
  Prefs p;
  const Words standard = p.List();
  ASSERT_FALSE(standard.empty());
  p.platform.AnswerYes();
  p.Click("EditWordFilters_ClearDictionary");
  EXPECT_EQ(p.s.Form.WordFiltersPage_WordDictionary, "");
  EXPECT_EQ(p.s.FilterCount, 0);
  p.platform.AnswerYes();
  p.Click("Command9");
  EXPECT_EQ(p.List(), standard);
}

TEST(EditWordFilters_SAVE_Click, AlwaysWritesTheStandardDictionary) {
  Prefs p;
  p.Use("the\r\nand\r\n");
  p.platform.AnswerOpen(p.File("zoo.txt", "zebra\r\n"));
  p.Click("EditWordFilters_MergeDictionary");
  EXPECT_EQ(p.List(), (Words{"and", "the", "zebra"}));
  const state::FileDialog& shown = p.platform.dialogs.back();
  EXPECT_EQ(shown.Filter, "(*.txt)|*.txt|");
  EXPECT_EQ(shown.DefaultExt, ".txt");

  p.platform.AnswerOpen(p.File("mine.txt", "mine\r\nours\r\n"));
  p.Click("EditWordFilters_LoadDictionary");
  EXPECT_EQ(p.s.Form.WordFiltersPage_CurrentWordDictionary_Text, p.folder.File("mine.txt"));
  EXPECT_EQ(p.List(), (Words{"mine", "ours"}));
  // A user file is current: no question, and the standard file receives the words.
  p.s.Form.WordFiltersPage_WordDictionary += "cat\r\n";
  p.Click("EditWordFilters_SAVE");
  EXPECT_TRUE(p.platform.questions.empty());
  EXPECT_EQ(ReadFile(p.standard).rfind("cat\r\nmine\r\nours\r\n", 0), 0u);
  EXPECT_EQ(ReadFile(p.folder.File("mine.txt")), "mine\r\nours\r\n");
}

TEST(EditWordFilters_SAVEAS_Click, WritesTheChosenFileAndMakesItCurrent) {
  Prefs p;
  p.Use("b\r\na\r\n");
  std::string target = p.folder.File("saved.txt");
  p.platform.AnswerSave(target);
  p.Click("EditWordFilters_SAVEAS");
  EXPECT_EQ(ReadFile(target).rfind("a\r\nb\r\n", 0), 0u);
  EXPECT_EQ(p.s.Form.WordFiltersPage_CurrentWordDictionary_Text, target);

  std::string before = ReadFile(p.standard);
  p.platform.AnswerSave(p.standard);
  p.platform.AnswerNo();
  p.Click("EditWordFilters_SAVEAS");
  EXPECT_EQ(ReadFile(p.standard), before);
  EXPECT_EQ(p.s.Form.WordFiltersPage_CurrentWordDictionary_Text, target);
}

// Both saves of the dictionary keep the old file whole when the write fails; "Save As" then
// leaves the current dictionary as it was.
TEST(EditWordFilters_SAVEAS_Click, AFailingWriteKeepsTheOldFileAndTheCurrentName) {
  testing::ShellProgramFolder folder;
  testing::FakePlatform platform{folder.Path()};
  testing::FullDisk disk;
  AppState s(platform, disk);
  commands::Form_Load(s);
  s.Form.WordFiltersPage_WordDictionary = "b\r\na\r\n";
  const std::string current = s.Form.WordFiltersPage_CurrentWordDictionary_Text;
  const std::string target = folder.File("saved.txt");
  WriteFile(target, "old words\r\n");
  platform.AnswerSave(target);
  EXPECT_THROW(EditWordFilters_SAVEAS_Click(s), file_io::FileError);
  EXPECT_EQ(ReadFile(target), "old words\r\n");
  EXPECT_EQ(s.Form.WordFiltersPage_CurrentWordDictionary_Text, current);

  const std::string standard = words::Standard_Dictionary_Path(s);
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
  const std::string mine = p.File("mine.txt", "mine\r\nours\r\n");
  p.platform.AnswerOpen(mine);
  p.Click("WordFiltersPage_SelectDefaultWordDictionary_Button");
  EXPECT_EQ(p.s.FilterDictionaryFile, mine);
  EXPECT_EQ(p.s.Form.WordFiltersPage_SelectDefaultWordDictionary_Text, mine);
  EXPECT_EQ(p.List(), (Words{"mine", "ours"}));
  p.Click("WordFiltersPage_ResetDefaultWordDictionary_Button");
  EXPECT_EQ(p.s.FilterDictionaryFile, "");
  EXPECT_EQ(p.s.Form.WordFiltersPage_SelectDefaultWordDictionary_Text, "");
  EXPECT_EQ(p.List(), (Words{"mine", "ours"}));
}

TEST(EditWordFilters, CancelledDialogsChangeNothing) {
  Prefs p;
  p.Use("one\r\ntwo\r\n");
  p.s.Form.WordFiltersPage_CurrentWordDictionary_Text = "current";
  p.s.FilterDictionaryFile = "default";
  for (const char* button :
       {"EditWordFilters_MergeDictionary", "EditWordFilters_LoadDictionary",
        "EditWordFilters_SAVEAS", "WordFiltersPage_SelectDefaultWordDictionary_Button"}) {
    SCOPED_TRACE(button);
    p.platform.CancelDialog();
    p.Click(button);
    EXPECT_EQ(p.s.Form.WordFiltersPage_WordDictionary, "one\r\ntwo\r\n");
    EXPECT_EQ(p.List(), (Words{"one", "two"}));
    EXPECT_EQ(p.s.Form.WordFiltersPage_CurrentWordDictionary_Text, "current");
    EXPECT_EQ(p.s.FilterDictionaryFile, "default");
  }
  EXPECT_TRUE(p.platform.questions.empty());
}

// Every check box of the window copies itself into its own setting and no other.
TEST(Prefs_CheckBoxes, EachClickCopiesItsBoxIntoItsSetting) {
  using F = state::FormModel;
  using S = state::SettingsFields;
#define BOX(name, setting) \
  { #name, &F::name, &S::setting }
  const std::tuple<const char*, int16_t F::*, int16_t S::*> pairs[] = {
      BOX(HtmlDecodePref_IncludeTitleWithBody_CheckBox, DecodeIncludeTitleWithBody),
      BOX(HtmlDecodePref_IncludeALTTEXT_CheckBox, DecodeIncludeAltText),
      BOX(HtmlDecodePref_IncludeBODYTEXT_CheckBox, DecodeIncludeBodyText),
      BOX(HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox, DecodeIncludeMetaDescriptionWithBody),
      BOX(WordMatch_ForceCase, WordMatchForceCase),
      BOX(WordMatch_IgnoreAlphaNumericWords, WordMatchIgnoreAlphaNumeric),
      BOX(KeyWords_ForceSameCaseMatching, KeywordsForceSameCase),
      BOX(KeyWords_MatchScanType_CheckBOx, KeywordsMatchScanType),
      BOX(KeyWordMatch_Disable_Part_Keyword_Matches, KeywordsDisablePartMatches),
      BOX(KeyWords_RemoveDoubleKeyWordListings, KeywordsRemoveDoubles),
      BOX(KeyWords_SortList, KeywordsSortList),
      BOX(KeyWords_MinKeyWordMatches_Option, KeywordsUseMinMatches),
      BOX(PageReport_Export_WordCount_CheckBox, ReportExportWordCount),
      BOX(ViewBody_ShowRAWBODY_CHeckBox, ViewBodyShowRaw),
      BOX(MetaTagEncodePref_SwapContentAndNameOrder_CheckBox, EncodeSwapContentAndNameOrder),
      BOX(MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox, EncodeComaSpaceBetweenKeywords),
  };
#undef BOX
  testing::FakePlatform platform;
  AppState s(platform);
  for (int16_t value : {int16_t{1}, int16_t{0}}) {
    for (const auto& [name, box, setting] : pairs) {
      s.Form.*box = value;
      ASSERT_TRUE(commands::Dispatch(s, name));
      // Only its own setting follows: every other pair still shows the previous round.
      for (const auto& [otherName, otherBox, otherSetting] : pairs)
        EXPECT_EQ(s.*otherSetting, s.Form.*otherBox) << name << " / " << otherName;
    }
  }
  EXPECT_TRUE(s.Form.ReportTextBox.empty());  // none of them starts an analysis
}

TEST(Defaults_Users_FileExtend_DropDown_Click, KnownExtensionsOnly) {
  testing::FakePlatform platform;
  AppState s(platform);
  const std::pair<const char*, const char*> picks[] = {
      {".html", ".html1"}, {".txt", ".txt3"}, {".htm", ".htm2"}, {".HTML", ".htm2"}, {"", ".htm2"}};
  for (const auto& [text, result] : picks) {
    s.Form.Defaults_Users_FileExtend_DropDown.Text = text;
    Defaults_Users_FileExtend_DropDown_Click(s);
    EXPECT_EQ(s.DefaultFileExtension + std::to_string(s.DefaultFileTypeIndex), result) << text;
  }
}

TEST(HtmlDecodePref_WordDecodeStopCHR, TheBoxDrivesTheDelimitersAndDefaultsRestoreThem) {
  testing::FakePlatform platform;
  AppState s(platform);
  s.Form.HtmlDecodePref_WordDecodeStopCHR_TextBox = ";";
  HtmlDecodePref_WordDecodeStopCHR_TextBox_Change(s);
  EXPECT_EQ(s.WordDelimiterChars, ";");
  ASSERT_TRUE(commands::Dispatch(s, "HtmlDecodePref_WordDecodeStopCHR_Button"));
  EXPECT_EQ(s.WordDelimiterChars, "\"#=<>^()[]{}/.,;:+-_*&!?@%");
  EXPECT_EQ(s.Form.HtmlDecodePref_WordDecodeStopCHR_TextBox, s.WordDelimiterChars);
}

}  // namespace
}  // namespace zentrel::commands

// The "Prefs" tab: filter dictionary buttons, check boxes, delimiters, file extension.

#include "commands/prefs.h"

#include "base/text.h"
#include "full_disk.h"
#include "started_program.h"
#include "state/settings.h"
#include "words/filter_dictionary.h"

namespace zentrel::commands {
namespace {

using testing::ReadFile;
using Words = std::vector<std::string>;

struct Prefs : testing::Started {
  using Started::Started;
  std::string standard = words::Standard_Dictionary_Path(s);

  Words Filters() const { return {s.FilterWords.begin(), s.FilterWords.begin() + s.FilterCount}; }
  // Sets the dictionary box and rebuilds the list from it.
  void Use(const std::string& box) {
    s.Form.WordFiltersPage_WordDictionary = box;
    Click("EditWordFilters_ResortUpdateFilters");
  }
};

TEST(EditWordFilters, QuestionsAskedAndNoChangesNothing) {
  const std::pair<const char*, const char*> cases[] = {
      {"EditWordFilters_ClearDictionary", "Clear Filters"},
      {"Command9", "Restore Filter Dictionary"},
      {"EditWordFilters_SAVE", "Overwrite Zentrel Default Filter Dictionary"},
  };
  for (const auto& [button, question] : cases) {
    SCOPED_TRACE(button);
    Prefs p;
    p.Use("the\r\nand\r\n");
    p.s.Form.WordFiltersPage_WordDictionary = "the\r\nand\r\n";  // as typed, not yet sorted
    // Compared without regard to case, the standard dictionary is the current one.
    p.s.Form.WordFiltersPage_CurrentWordDictionary_Text = text::UCase(p.standard);
    const std::string saved = ReadFile(p.standard);
    p.platform.AnswerNo();
    p.Click(button);
    EXPECT_EQ(p.platform.questions.back(),
              std::string("WARNING: WARNING - ") + question + " ? Are you sure ?");
    EXPECT_EQ(p.s.Form.WordFiltersPage_WordDictionary, "the\r\nand\r\n");
    EXPECT_EQ(p.Filters(), (Words{"and", "the"}));
    EXPECT_EQ(ReadFile(p.standard), saved);
  }
}

TEST(EditWordFilters, YesClearsAndDefaultsRestore) {
  Prefs p;
  const Words standard = p.Filters();
  ASSERT_FALSE(standard.empty());
  p.platform.AnswerYes();
  p.Click("EditWordFilters_ClearDictionary");
  EXPECT_EQ(p.s.Form.WordFiltersPage_WordDictionary, "");
  EXPECT_EQ(p.s.FilterCount, 0);
  p.platform.AnswerYes();
  p.Click("Command9");
  EXPECT_EQ(p.Filters(), standard);
}

// Merge and load read CR-only line ends too; "Save" always writes the standard dictionary.
TEST(EditWordFilters, MergeLoadAndSave) {
  Prefs p;
  p.Use("the\r\nand\r\n");
  p.platform.AnswerOpen(p.Write("zoo.txt", "zebra\rant\r"));
  p.Click("EditWordFilters_MergeDictionary");
  EXPECT_EQ(p.Filters(), (Words{"and", "ant", "the", "zebra"}));
  EXPECT_EQ(p.platform.dialogs.back().Filter, "(*.txt)|*.txt|");
  EXPECT_EQ(p.platform.dialogs.back().FilterIndex, 1);

  const std::string mine = p.Write("mine.txt", "mine\r\nours\r\n");
  p.platform.AnswerOpen(mine);
  p.Click("EditWordFilters_LoadDictionary");
  EXPECT_EQ(p.s.Form.WordFiltersPage_CurrentWordDictionary_Text, mine);
  EXPECT_EQ(p.Filters(), (Words{"mine", "ours"}));
  // A user file is current: no question, and the standard file receives the words.
  p.s.Form.WordFiltersPage_WordDictionary += "cat\r\n";
  p.Click("EditWordFilters_SAVE");
  EXPECT_TRUE(p.platform.questions.empty());
  EXPECT_EQ(ReadFile(p.standard).rfind("cat\r\nmine\r\nours\r\n", 0), 0u);
  EXPECT_EQ(ReadFile(mine), "mine\r\nours\r\n");
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

// A failed write (kept whole by the writer) leaves the current dictionary's name as it was.
TEST(EditWordFilters_SAVEAS_Click, AFailingWriteKeepsTheCurrentName) {
  testing::FullDisk disk;
  Prefs p(disk);
  const std::string current = p.s.Form.WordFiltersPage_CurrentWordDictionary_Text;
  p.platform.AnswerSave(p.folder.File("saved.txt"));
  EXPECT_THROW(EditWordFilters_SAVEAS_Click(p.s), file_io::FileError);
  EXPECT_EQ(p.s.Form.WordFiltersPage_CurrentWordDictionary_Text, current);
  EXPECT_GT(disk.failedWrites, 0);
}

// "Select Default" is checked on a restart; "Reset Default" keeps the words in use.
TEST(WordFiltersPage_ResetDefaultWordDictionary_Button_Click, KeepsTheWordsInUse) {
  Prefs p;
  p.platform.AnswerOpen(p.Write("mine.txt", "mine\r\nours\r\n"));
  p.Click("WordFiltersPage_SelectDefaultWordDictionary_Button");
  p.Click("WordFiltersPage_ResetDefaultWordDictionary_Button");
  EXPECT_EQ(p.s.FilterDictionaryFile, "");
  EXPECT_EQ(p.s.Form.WordFiltersPage_SelectDefaultWordDictionary_Text, "");
  EXPECT_EQ(p.Filters(), (Words{"mine", "ours"}));
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
    EXPECT_EQ(p.Filters(), (Words{"one", "two"}));
    EXPECT_EQ(p.s.Form.WordFiltersPage_CurrentWordDictionary_Text, "current");
    EXPECT_EQ(p.s.FilterDictionaryFile, "default");
  }
  EXPECT_TRUE(p.platform.questions.empty());
}

// Every check box copies itself into its own setting and no other, and starts no analysis.
TEST(SettingBoxes, EachClickCopiesItsBoxIntoItsSetting) {
  testing::FakePlatform platform;
  AppState s(platform);
  for (int16_t value : {int16_t{1}, int16_t{0}}) {
    for (const state::Setting& row : state::Settings()) {
      if (!row.CheckBox)
        continue;
      SCOPED_TRACE(row.Control);
      s.Form.*row.CheckBox = value;
      ASSERT_TRUE(Dispatch(s, row.Control));
      for (const state::Setting& other : state::Settings()) {
        if (other.CheckBox) {
          EXPECT_EQ(s.*other.Flag, s.Form.*other.CheckBox) << other.Control;
        }
      }
    }
  }
  EXPECT_TRUE(s.Form.ReportTextBox.empty());
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
  Prefs p;
  p.s.Form.HtmlDecodePref_WordDecodeStopCHR_TextBox = ";";
  HtmlDecodePref_WordDecodeStopCHR_TextBox_Change(p.s);
  EXPECT_EQ(p.s.WordDelimiterChars, ";");
  p.Click("HtmlDecodePref_WordDecodeStopCHR_Button");
  EXPECT_EQ(p.s.WordDelimiterChars, "\"#=<>^()[]{}/.,;:+-_*&!?@%");
  EXPECT_EQ(p.s.Form.HtmlDecodePref_WordDecodeStopCHR_TextBox, p.s.WordDelimiterChars);
}

}  // namespace
}  // namespace zentrel::commands

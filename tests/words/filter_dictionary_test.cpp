#include "words/filter_dictionary.h"

#include "commands/word_filters.h"
#include "started_program.h"

namespace zentrel::words {
namespace {

using commands::Load_Word_Filter_Dictionary;
using commands::Resort_And_Removed_Doubles_From_Filter_Dictionary;
using commands::Save_Word_Filter_Dictionary;
using Words = std::vector<std::string>;

struct Dictionary : testing::Started {
  Words Rebuild(const std::string& box) {
    s.Form.WordFiltersPage_WordDictionary = box;
    Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
    return {s.FilterWords.begin(), s.FilterWords.begin() + s.FilterCount};
  }
};

TEST(Resort_And_Removed_Doubles_From_Filter_Dictionary, CleansSortsAndDropsRepeats) {
  Dictionary d;
  EXPECT_EQ(d.Rebuild("The, and\r\nof\r\nthe"), (Words{"and", "of", "the"}));
  EXPECT_EQ(d.s.Form.WordFiltersPage_WordDictionary, "and\r\nof\r\nthe\r\n");
  Build_Filter_Words_Text(d.s);
  EXPECT_EQ(d.s.FilterWordsText, " and of the  ");

  // Ordinal order, byte by byte; a lone LF or a tab does not separate entries.
  EXPECT_EQ(d.Rebuild("b2\r\nb10\r\n\xE4h\r\nzed\nyes\r\nb10,, \t x"),
            (Words{"\t x", "b10", "b2", "zed\nyes", "\xE4h"}));
  // A single word leaves an empty list; two equal words are a repeat: one stays.
  EXPECT_EQ(d.Rebuild("lonely"), Words{});
  EXPECT_EQ(d.Rebuild("x1,X1"), Words{"x1"});
}

// CR-only line ends end entries too.
TEST(Load_Word_Filter_Dictionary, ReadsListItemsAndSavesTheBox) {
  Dictionary d;
  testing::WriteFile(d.folder.File("user.txt"), "cats and dogs\r\"x, y\",Zebra\r");
  d.s.Form.WordFiltersPage_WordDictionary = "unchanged";
  Load_Word_Filter_Dictionary(d.s, d.folder.File("missing.txt"), "");
  EXPECT_EQ(d.s.Form.WordFiltersPage_WordDictionary, "unchanged");

  Load_Word_Filter_Dictionary(d.s, d.folder.File("user.txt"), "and\r\n");
  EXPECT_EQ(d.s.Form.WordFiltersPage_WordDictionary, "and\r\ncats and dogs\r\nx, y\r\nZebra\r\n");
  Save_Word_Filter_Dictionary(d.s, d.folder.File("saved.txt"));
  EXPECT_EQ(testing::ReadFile(d.folder.File("saved.txt")),
            "and\r\ncats and dogs\r\nx, y\r\nZebra\r\n\r\n");
}

}  // namespace
}  // namespace zentrel::words

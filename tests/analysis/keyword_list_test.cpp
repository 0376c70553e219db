#include "analysis/keyword_list.h"

#include "decode/meta_tag_table.h"
#include "started_program.h"

namespace zentrel::analysis {
namespace {

using Strings = std::vector<std::string>;

struct Keywords : testing::Started {
  explicit Keywords(const Strings& list = {}, const std::vector<int16_t>& matches = {}) {
    s.FilterWordsText = " and the  ";
    testing::Started::Keywords(list, matches);
  }
};

// The page's own filter words stay; typed ones are left out (only as a whole phrase).
TEST(Add_Pages_MetaTag_keywords, EmptyPartsAndLoneCommasAreNeverAdded) {
  Keywords k;
  decode::Set_MetaTag_Value(k.s, "keywords", "a, b,, the,");
  Add_Pages_MetaTag_keywords(k.s);
  EXPECT_EQ(k.Keys(), (Strings{"a", "b", "the"}));
  EXPECT_EQ(k.s.KeywordSplitCount, 4);

  k.s.UsersKeywordsText = "  Widgets, the ,and the, the and,";
  Add_Users_Hand_Selected_Keywords_to_Pages_keywords(k.s);
  EXPECT_EQ(k.Keys(), (Strings{"a", "b", "the", "Widgets", "the and"}));
  EXPECT_EQ(k.s.UsersKeywordsText, "Widgets, the ,and the, the and");
}

TEST(Check_Keywords_For_Doubles, ExactComparisonAndTheTextOfBlankedCopies) {
  Keywords cased({"Shoes", "shoes"});
  EXPECT_EQ(Check_Keywords_For_Doubles(cased.s), 0);

  Keywords k({"x", "y", "x", "x"}, {1, 2, 3, 4});
  EXPECT_EQ(Check_Keywords_For_Doubles(k.s), 1);
  EXPECT_EQ(k.s.KeywordDoublesText, "x\r\nx\r\n\r\n");
  k.s.KeywordTitleMatches[1] = 9;
  Remove_Keyword_Doubles(k.s);
  EXPECT_EQ(k.Keys(), (Strings{"x", "y"}));
  EXPECT_EQ(k.s.KeywordBodyMatches[1], 2);
  EXPECT_EQ(k.s.KeywordTitleMatches[1], 9);  // title matches keep their places

  Keywords kept({"x", "x"});
  kept.s.KeywordsRemoveDoubles = 0;
  EXPECT_EQ(Check_Keywords_For_Doubles(kept.s), 1);
  EXPECT_EQ(kept.Keys(), (Strings{"x", "x"}));
}

TEST(Remove_Keyword_With_Low_Match_Counts, ThresholdFromTheDropDownText) {
  struct Case {
    int16_t option;
    std::string choice;
    Strings left;
  };
  const Case cases[] = {
      {1, " 1 Match", {"one", "twelve", "many"}},
      {1, "12 Matches", {"twelve", "many"}},
      {1, "Twelve", {"none", "one", "twelve", "many"}},
      {0, "12 Matches", {"none", "one", "twelve", "many"}},
      {1, "1234", {}},  // three digits at most: 123
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.choice);
    Keywords k({"none", "one", "twelve", "many"}, {0, 1, 12, 30});
    k.s.Form.KeyWords_MinKeyWordMatches_Option = c.option;
    k.s.Form.KeyWords_MinKeyWordMatches_DropDown.Text = c.choice;
    Remove_Keyword_With_Low_Match_Counts(k.s);
    EXPECT_EQ(k.Keys(), c.left);
  }
}

TEST(Sort_Page_KeyWord_Strings, MostMatchesFirstAndEqualCountsReversed) {
  Keywords k({"a", "b", "c", "d"}, {2, 5, 2, 5});
  k.s.KeywordTitleMatches[0] = 7;
  Sort_Page_KeyWord_Strings(k.s);
  EXPECT_EQ(k.Keys(), (Strings{"d", "b", "c", "a"}));
  EXPECT_EQ(k.s.KeywordTitleMatches[0], 7);  // not moved

  k.s.KeywordsSortList = 0;
  k.s.KeywordBodyMatches[3] = 9;
  Sort_Page_KeyWord_Strings(k.s);
  EXPECT_EQ(k.Keys(), (Strings{"d", "b", "c", "a"}));

  k.s.KeywordsSortList = 1;
  k.s.KeywordBodyMatches[2] = 5001;
  EXPECT_THROW(Sort_Page_KeyWord_Strings(k.s), RunTimeError);
}

}  // namespace
}  // namespace zentrel::analysis

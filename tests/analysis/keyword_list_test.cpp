#include "analysis/keyword_list.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/app_state.h"
#include "base/run_time_error.h"
#include "decode/meta_tag_table.h"
#include "fake_platform.h"

namespace zentrel::analysis {
namespace {

using Words = std::vector<std::string>;

struct Keywords {
  testing::FakePlatform platform;
  AppState s{platform};

  Keywords() {
    decode::Init_MetaTag_Table(s);
    Reset_Keyword_List(s);
    s.FilterWordsText = " and the  ";
    s.KeywordsRemoveDoubles = 1;
    s.KeywordsSortList = 1;
  }

  void Add(const Words& words, const std::vector<int16_t>& matches = {}) {
    for (size_t k = 0; k < words.size(); ++k) {
      Add_Word_To_KeyWord_buffer(s, words[k]);
      if (k < matches.size())
        s.KeywordBodyMatches[static_cast<size_t>(s.KeywordCount - 1)] = matches[k];
    }
  }

  Words List() const { return {s.KeywordList.begin(), s.KeywordList.begin() + s.KeywordCount}; }
};

TEST(Add_Pages_MetaTag_keywords, EmptyPartsAndLoneCommasAreNeverAdded) {
  Keywords k;
  decode::Set_MetaTag_Value(k.s, "keywords", "a, b,, c,");
  Add_Pages_MetaTag_keywords(k.s);
  EXPECT_EQ(k.List(), (Words{"a", "b", "c"}));
  EXPECT_EQ(k.s.KeywordSplitCount, 4);
  EXPECT_EQ(k.s.KeywordFirstChr[1], 'b');

  Keywords lone;
  decode::Set_MetaTag_Value(lone.s, "keywords", "x , ,the,");
  Add_Pages_MetaTag_keywords(lone.s);
  EXPECT_EQ(lone.List(), (Words{"x", "the"}));  // the page's own filter words stay

  Keywords none;
  Add_Pages_MetaTag_keywords(none.s);
  EXPECT_EQ(none.s.KeywordCount, 0);
  EXPECT_EQ(none.s.KeywordSplitCount, 0);
}

TEST(Add_Users_Hand_Selected_Keywords_to_Pages_keywords, TypedFilterWordsAreSkipped) {
  Keywords k;
  k.s.UsersKeywordsText = "  Widgets, the ,";
  Add_Users_Hand_Selected_Keywords_to_Pages_keywords(k.s);
  EXPECT_EQ(k.List(), Words{"Widgets"});
  EXPECT_EQ(k.s.UsersKeywordsText, "Widgets, the ");
  EXPECT_EQ(k.s.KeywordSplitCount, 2);

  // A phrase is skipped only when its words stand side by side in the filter string.
  k.s.UsersKeywordsText = "and the, the and";
  Add_Users_Hand_Selected_Keywords_to_Pages_keywords(k.s);
  EXPECT_EQ(k.List(), (Words{"Widgets", "the and"}));

  // Nothing typed: the page's split count stands.
  k.s.KeywordSplitCount = 7;
  k.s.UsersKeywordsText = " , ";
  Add_Users_Hand_Selected_Keywords_to_Pages_keywords(k.s);
  EXPECT_EQ(k.s.KeywordSplitCount, 7);
}

TEST(Check_Keywords_For_Doubles, ExactComparisonAndTheTextOfBlankedCopies) {
  Keywords k;
  k.Add({"Shoes", "shoes"});
  EXPECT_EQ(Check_Keywords_For_Doubles(k.s), 0);
  EXPECT_EQ(k.s.KeywordDoublesText, "");

  Keywords three;
  three.Add({"x", "y", "x", "x"}, {1, 2, 3, 4});
  EXPECT_EQ(Check_Keywords_For_Doubles(three.s), 1);
  EXPECT_EQ(three.s.KeywordDoublesText, "x\r\nx\r\n\r\n");
  three.s.KeywordTitleMatches[1] = 9;
  Remove_Keyword_Doubles(three.s);
  EXPECT_EQ(three.List(), (Words{"x", "y"}));
  EXPECT_EQ(three.s.KeywordBodyMatches[1], 2);
  EXPECT_EQ(three.s.KeywordTitleMatches[1], 9);  // title matches keep their places

  Keywords kept;
  kept.s.KeywordsRemoveDoubles = 0;
  kept.Add({"x", "x", "x"});
  EXPECT_EQ(Check_Keywords_For_Doubles(kept.s), 1);
  EXPECT_EQ(kept.s.KeywordDoublesText, "x\r\nx\r\nx\r\n");
  EXPECT_EQ(kept.s.KeywordCount, 3);
  EXPECT_EQ(kept.List(), (Words{"x", "x", "x"}));
}

TEST(Remove_Keyword_With_Low_Match_Counts, ThresholdFromTheDropDownText) {
  auto run = [](int16_t option, const std::string& choice) {
    Keywords k;
    k.Add({"none", "one", "twelve", "many"}, {0, 1, 12, 30});
    k.s.Form.KeyWords_MinKeyWordMatches_Option = option;
    k.s.Form.KeyWords_MinKeyWordMatches_DropDown.Text = choice;
    Remove_Keyword_With_Low_Match_Counts(k.s);
    return k.List();
  };
  EXPECT_EQ(run(1, " 1 Match"), (Words{"one", "twelve", "many"}));
  EXPECT_EQ(run(1, "12 Matches"), (Words{"twelve", "many"}));
  EXPECT_EQ(run(1, "Twelve"), (Words{"none", "one", "twelve", "many"}));
  EXPECT_EQ(run(0, "12 Matches"), (Words{"none", "one", "twelve", "many"}));
  EXPECT_EQ(run(1, "1234"), Words{});  // three digits at most: 123
}

TEST(Sort_Page_KeyWord_Strings, MostMatchesFirstAndEqualCountsReversed) {
  Keywords k;
  k.Add({"a", "b", "c", "d"}, {2, 5, 2, 5});
  k.s.KeywordTitleMatches[0] = 7;
  Sort_Page_KeyWord_Strings(k.s);
  EXPECT_EQ(k.List(), (Words{"d", "b", "c", "a"}));
  EXPECT_EQ(k.s.KeywordBodyMatches[0], 5);
  EXPECT_EQ(k.s.KeywordFirstChr[0], 'd');
  EXPECT_EQ(k.s.KeywordTitleMatches[0], 7);

  k.s.KeywordsSortList = 0;
  k.s.KeywordBodyMatches[3] = 9;
  Sort_Page_KeyWord_Strings(k.s);
  EXPECT_EQ(k.List(), (Words{"d", "b", "c", "a"}));

  k.s.KeywordsSortList = 1;
  k.s.KeywordBodyMatches[2] = 5001;
  EXPECT_THROW(Sort_Page_KeyWord_Strings(k.s), RunTimeError);
}

TEST(Add_Word_To_KeyWord_buffer, GrowsByTwoHundredKeepingContents) {
  Keywords k;
  for (int i = 0; i < 501; ++i)
    Add_Word_To_KeyWord_buffer(k.s, " kw" + std::to_string(i) + " ");
  EXPECT_EQ(k.s.KeywordCount, 501);
  EXPECT_EQ(k.s.KeywordCapacity, 700);
  EXPECT_EQ(k.s.KeywordList.size(), 701u);
  EXPECT_EQ(k.s.KeywordList[0], "kw0");
  EXPECT_EQ(k.s.KeywordList[500], "kw500");
}

}  // namespace
}  // namespace zentrel::analysis

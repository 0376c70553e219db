#include "commands/choice_lists.h"

#include <gtest/gtest.h>

#include "decode/meta_tag_table.h"
#include "fake_platform.h"
#include "state/app_state.h"

namespace zentrel::commands {
namespace {

using List = std::vector<std::string>;

struct Panel {
  testing::FakePlatform platform;
  AppState s{platform};
  state::FormModel& f = s.Form;
  Panel() {
    decode::Init_MetaTag_Table(s);
    s.DefaultFileExtension = ".txt";
    Set_Drop_Downs(s);
  }
};

TEST(Set_Drop_Downs, FillsEveryListAndResetsThePicks) {
  Panel p;
  p.f.PageMetaTags_Robots_DropDown.Text = "none";
  p.f.PageMetaTags_Expires_Day.Text = " 3";
  Set_Drop_Downs(p.s);  // filling again replaces, never appends
  EXPECT_EQ(p.f.PageMetaTags_Rating_DropDown.List,
            (List{"general", "14 years", "mature", "restricted"}));
  EXPECT_EQ(p.f.PageMetaTags_Robots_DropDown.List,
            (List{"index", "all", "none", "index,follow", "index,nofollow", "noindex,nofollow",
                  "noindex,follow"}));
  EXPECT_EQ(p.f.PageMetaTags_Distribution_DropDown.List, (List{"global", "local", "iu"}));
  EXPECT_EQ(p.f.Defaults_Users_FileExtend_DropDown.List, (List{".html", ".htm", ".txt"}));
  EXPECT_EQ(p.f.PageMetaTags_Robots_DropDown.Text, "Select");
  EXPECT_EQ(p.f.PageMetaTags_Expires_Day.Text, "");
  EXPECT_EQ(p.f.Defaults_Users_FileExtend_DropDown.Text, ".txt");

  const std::pair<const state::DropDown*, List> ranges[] = {
      {&p.f.PageMetaTags_RevisitAfter_DropDown, {"10", " 10 days", " 100 days"}},
      {&p.f.PageMetaTags_Expires_Day, {"31", " 1", " 31"}},
      {&p.f.PageMetaTags_Expires_Month, {"12", "January", "December"}},
      {&p.f.PageMetaTags_Expires_Year, {"101", " 2001", " 2101"}},
  };
  for (const auto& [box, ends] : ranges)
    EXPECT_EQ((List{std::to_string(box->List.size()), box->List.front(), box->List.back()}), ends);
}

// Revisit-after is trimmed, the other picks are copied as they stand.
TEST(ChoiceLists, PicksGoIntoTheirFields) {
  Panel p;
  p.f.PageMetaTags_Distribution_DropDown.Text = " iu";
  PageMetaTags_Distribution_DropDown_Click(p.s);
  p.f.PageMetaTags_RevisitAfter_DropDown.Text = " 100 days";
  PageMetaTags_RevisitAfter_DropDown_Click(p.s);
  p.f.PageMetaTags_Robots_DropDown.Text = "none";
  PageMetaTags_Robots_DropDown_Click(p.s);
  p.f.PageMetaTags_Rating_DropDown.Text = "mature";
  PageMetaTags_Rating_DropDown_Click(p.s);
  EXPECT_EQ((List{p.f.MetaTag_TextBox[11], p.f.MetaTag_TextBox[10], p.f.MetaTag_TextBox[9],
                  p.f.MetaTag_TextBox[8]}),
            (List{" iu", "100 days", "none", "mature"}));
}

TEST(PageMetaTags_Expires_SetDate_Click, ComposesDayMonthYear) {
  Panel p;
  PageMetaTags_Expires_SetDate_Click(p.s);
  EXPECT_EQ(p.f.MetaTag_TextBox[12], "  ");  // nothing chosen: two blanks
  p.f.PageMetaTags_Expires_Day.Text = " 9";
  p.f.PageMetaTags_Expires_Month.Text = " February";  // the month is not trimmed
  p.f.PageMetaTags_Expires_Year.Text = " 2101";
  PageMetaTags_Expires_SetDate_Click(p.s);
  EXPECT_EQ(p.f.MetaTag_TextBox[12], "9  February 2101");
}

}  // namespace
}  // namespace zentrel::commands

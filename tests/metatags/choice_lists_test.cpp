#include "metatags/choice_lists.h"

#include <gtest/gtest.h>

#include "app/app_state.h"
#include "decode/meta_tag_table.h"
#include "fake_platform.h"

namespace zentrel::metatags {
namespace {

struct Panel {
  Panel() : s(platform) {
    decode::Init_MetaTag_Table(s);
    s.DefaultFileExtension = ".txt";
    Set_Drop_Downs(s);
  }
  testing::FakePlatform platform;
  AppState s;
  app::FormModel& f = s.Form;
};

TEST(Set_Drop_Downs, FillsEveryListAndResetsThePicks) {
  Panel p;
  p.f.PageMetaTags_Robots_DropDown.Text = "none";
  p.f.PageMetaTags_Expires_Day.Text = " 3";
  Set_Drop_Downs(p.s);  // filling again replaces, never appends
  EXPECT_EQ(p.f.PageMetaTags_Rating_DropDown.List,
            (std::vector<std::string>{"general", "14 years", "mature", "restricted"}));
  EXPECT_EQ(p.f.PageMetaTags_Robots_DropDown.List,
            (std::vector<std::string>{"index", "all", "none", "index,follow", "index,nofollow",
                                      "noindex,nofollow", "noindex,follow"}));
  EXPECT_EQ(p.f.PageMetaTags_Distribution_DropDown.List,
            (std::vector<std::string>{"global", "local", "iu"}));
  for (auto* box :
       {&p.f.PageMetaTags_Rating_DropDown, &p.f.PageMetaTags_Robots_DropDown,
        &p.f.PageMetaTags_Distribution_DropDown, &p.f.PageMetaTags_RevisitAfter_DropDown})
    EXPECT_EQ(box->Text, "Select");

  const auto& revisit = p.f.PageMetaTags_RevisitAfter_DropDown.List;
  ASSERT_EQ(revisit.size(), 10u);
  EXPECT_EQ(revisit.front(), " 10 days");
  EXPECT_EQ(revisit[2], " 30 days");
  EXPECT_EQ(revisit.back(), " 100 days");

  const auto& day = p.f.PageMetaTags_Expires_Day;
  ASSERT_EQ(day.List.size(), 31u);
  EXPECT_EQ(day.List.front(), " 1");
  EXPECT_EQ(day.List.back(), " 31");
  EXPECT_EQ(day.Text, "");
  ASSERT_EQ(p.f.PageMetaTags_Expires_Month.List.size(), 12u);
  EXPECT_EQ(p.f.PageMetaTags_Expires_Month.List[8], "September");
  const auto& year = p.f.PageMetaTags_Expires_Year.List;
  ASSERT_EQ(year.size(), 101u);
  EXPECT_EQ(year.front(), " 2001");
  EXPECT_EQ(year.back(), " 2101");

  EXPECT_EQ(p.f.Defaults_Users_FileExtend_DropDown.List,
            (std::vector<std::string>{".html", ".htm", ".txt"}));
  EXPECT_EQ(p.f.Defaults_Users_FileExtend_DropDown.Text, ".txt");
}

TEST(ChoiceLists, PicksGoIntoTheirFields) {
  Panel p;
  p.f.PageMetaTags_Robots_DropDown.Text = "index,nofollow";
  PageMetaTags_Robots_DropDown_Click(p.s);
  p.f.PageMetaTags_Rating_DropDown.Text = "14 years";
  PageMetaTags_Rating_DropDown_Click(p.s);
  p.f.PageMetaTags_Distribution_DropDown.Text = " iu";  // copied as it stands
  PageMetaTags_Distribution_DropDown_Click(p.s);
  p.f.PageMetaTags_RevisitAfter_DropDown.Text = " 100 days";
  PageMetaTags_RevisitAfter_DropDown_Click(p.s);
  EXPECT_EQ(p.f.MetaTag_TextBox[9], "index,nofollow");
  EXPECT_EQ(p.f.MetaTag_TextBox[8], "14 years");
  EXPECT_EQ(p.f.MetaTag_TextBox[11], " iu");
  EXPECT_EQ(p.f.MetaTag_TextBox[10], "100 days");
  EXPECT_EQ(p.f.MetaTag_TextBox_ToolTip[10], "This Field is 8 Characters Long");
}

TEST(PageMetaTags_Expires_SetDate_Click, ComposesDayMonthYear) {
  Panel p;
  PageMetaTags_Expires_SetDate_Click(p.s);
  EXPECT_EQ(p.f.MetaTag_TextBox[12], "  ");  // nothing chosen: two blanks

  p.f.PageMetaTags_Expires_Day.Text = " 9";
  p.f.PageMetaTags_Expires_Month.Text = "December";
  p.f.PageMetaTags_Expires_Year.Text = " 2101";
  PageMetaTags_Expires_SetDate_Click(p.s);
  EXPECT_EQ(p.f.MetaTag_TextBox[12], "9 December 2101");

  p.f.PageMetaTags_Expires_Day.Text = " 31";
  p.f.PageMetaTags_Expires_Month.Text = " February";  // the month is not trimmed
  p.f.PageMetaTags_Expires_Year.Text = " 2001";
  PageMetaTags_Expires_SetDate_Click(p.s);
  EXPECT_EQ(p.f.MetaTag_TextBox[12], "31  February 2001");
}

}  // namespace
}  // namespace zentrel::metatags

// The "Edit Meta Tags" tab: its fields, marks, clip slots and choice lists.

#include "commands/edit_meta_tags.h"

#include "commands/choice_lists.h"
#include "decode/meta_tag_table.h"
#include "started_program.h"

namespace zentrel::commands {
namespace {

struct Panel : testing::Started {
  state::FormModel& f = s.Form;
  void Keywords(const std::vector<std::string>& words) {
    Started::Keywords(words);
    Set_Metatag_Page_TextBoxes(s);
  }
};

// The keywords field shows the keyword list, not the decoded value; one keyword, like none,
// leaves it empty.
TEST(Set_Metatag_Page_TextBoxes, FieldsFromTheDecodedValuesAndTheKeywordList) {
  Panel p;
  decode::Set_MetaTag_Value(p.s, "description", "Forty-two characters of text, more or less");
  decode::Set_MetaTag_Value(p.s, "keywords", "raw, page, value");
  p.f.MetaTag_TextBox[4] = "stale";
  p.Keywords({"a", "b", "c"});
  EXPECT_EQ(p.f.MetaTag_TextBox[1], "Forty-two characters of text, more or less");
  EXPECT_EQ(p.f.MetaTag_TextBox_ToolTip[1], "This Field is 42 Characters Long");
  EXPECT_EQ(p.f.MetaTag_TextBox[3], "a, b, c");
  EXPECT_EQ(p.f.MetaTag_TextBox[4], "");
  EXPECT_EQ(p.f.MetaTag_TextBox_ToolTip[4], "");  // filled empty: no hover text

  p.s.EncodeComaSpaceBetweenKeywords = 0;
  p.Keywords({"x", "y"});
  EXPECT_EQ(p.f.MetaTag_TextBox[3], "x,y");
  p.Keywords({"only"});
  EXPECT_EQ(p.f.MetaTag_TextBox[3], "");

  Set_MetaTag_TextBox(p.s, 1, "");  // emptied by typing, the hover text still gives the length
  EXPECT_EQ(p.f.MetaTag_TextBox_ToolTip[1], "This Field is 0 Characters Long");
}

TEST(MetaTagFunctions, MarksClearingAndThePrivateClipSlots) {
  Panel p;
  for (int16_t i = 0; i < 13; ++i)
    Set_MetaTag_TextBox(p.s, i, "v" + std::to_string(i));
  p.Click("MetaTagFunctions_MArk_ALL_Checkboxes");
  EXPECT_EQ(p.f.MetaTag_Selection_CheckBox[12], 1);
  p.Click("MetaTagFunctions_UnMArk_ALL_Checkboxes");
  EXPECT_EQ(p.f.MetaTag_Selection_CheckBox[0], 0);

  p.f.MetaTag_Selection_CheckBox[2] = 1;  // pasting before any copy empties the field
  p.Click("MetaTagFunctions_PasteClipToMarked");
  EXPECT_EQ(p.f.MetaTag_TextBox[2], "");

  p.f.MetaTag_Selection_CheckBox[3] = 1;
  p.Click("MetaTagFunctions_CopyMarkedToClip");
  p.Click("MetaTagFunctions_UnMArk_ALL_Checkboxes");
  p.Click("MetaTagFunctions_CopyMarkedToClip");  // nothing marked: slots keep their text
  Set_MetaTag_TextBox(p.s, 3, "typed over");
  p.f.MetaTag_Selection_CheckBox[3] = 1;
  p.Click("MetaTagFunctions_PasteClipToMarked");
  EXPECT_EQ(p.f.MetaTag_TextBox[3], "v3");  // back into field 3, never another
  EXPECT_EQ(p.f.MetaTag_TextBox_ToolTip[3], "This Field is 2 Characters Long");

  p.f.MetaTag_Selection_CheckBox[5] = 1;
  p.Click("MetaTagFunctions_ClearMarked");
  EXPECT_EQ(p.f.MetaTag_TextBox[5], "");
  EXPECT_EQ(p.f.MetaTag_TextBox[6], "v6");
  p.Click("MetaTagFunctions_ClearALL");
  EXPECT_EQ(p.f.MetaTag_TextBox, decltype(p.f.MetaTag_TextBox){});
}

// Filling the lists again replaces them and resets the picks; a pick goes into its field
// (revisit-after trimmed, the others as they stand), and "Set Date" composes the expiry.
TEST(ChoiceLists, PicksGoIntoTheirFields) {
  Panel p;
  const size_t robots = p.f.PageMetaTags_Robots_DropDown.List.size();
  p.f.PageMetaTags_Robots_DropDown.Text = "none";
  p.f.PageMetaTags_Expires_Day.Text = " 3";
  p.s.DefaultFileExtension = ".txt";
  Set_Drop_Downs(p.s);
  EXPECT_EQ(p.f.PageMetaTags_Robots_DropDown.List.size(), robots);
  EXPECT_EQ(p.f.PageMetaTags_Robots_DropDown.Text, "Select");
  EXPECT_EQ(p.f.PageMetaTags_Expires_Day.Text, "");
  EXPECT_EQ(p.f.Defaults_Users_FileExtend_DropDown.Text, ".txt");

  p.Click("PageMetaTags_Expires_SetDate");
  EXPECT_EQ(p.f.MetaTag_TextBox[12], "  ");  // nothing chosen: two blanks
  const std::pair<state::DropDown state::FormModel::*, const char*> picks[] = {
      {&state::FormModel::PageMetaTags_Distribution_DropDown, " iu"},
      {&state::FormModel::PageMetaTags_RevisitAfter_DropDown, " 100 days"},
      {&state::FormModel::PageMetaTags_Robots_DropDown, "none"},
      {&state::FormModel::PageMetaTags_Rating_DropDown, "mature"},
      {&state::FormModel::PageMetaTags_Expires_Day, " 9"},
      {&state::FormModel::PageMetaTags_Expires_Month, " February"},  // not trimmed
      {&state::FormModel::PageMetaTags_Expires_Year, " 2101"},
  };
  for (const auto& [list, text] : picks)
    (p.f.*list).Text = text;
  for (const char* name : {"PageMetaTags_Distribution_DropDown",
                           "PageMetaTags_RevisitAfter_DropDown", "PageMetaTags_Robots_DropDown",
                           "PageMetaTags_Rating_DropDown", "PageMetaTags_Expires_SetDate"})
    p.Click(name);
  EXPECT_EQ(
      (std::vector<std::string>(p.f.MetaTag_TextBox.begin() + 8, p.f.MetaTag_TextBox.begin() + 13)),
      (std::vector<std::string>{"mature", "none", "100 days", " iu", "9  February 2101"}));
}

}  // namespace
}  // namespace zentrel::commands

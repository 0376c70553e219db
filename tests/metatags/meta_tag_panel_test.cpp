#include "metatags/meta_tag_panel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "analysis/keyword_list.h"
#include "app/app_state.h"
#include "decode/meta_tag_table.h"
#include "fake_platform.h"

namespace zentrel::metatags {
namespace {

struct Panel {
  testing::FakePlatform platform;
  AppState s{platform};

  Panel() {
    decode::Init_MetaTag_Table(s);
    analysis::Reset_Keyword_List(s);
  }
  void Keywords(const std::vector<std::string>& words) {
    analysis::Reset_Keyword_List(s);
    for (const std::string& w : words)
      analysis::Add_Word_To_KeyWord_buffer(s, w);
  }
  const std::string& Field(int i) const { return s.Form.MetaTag_TextBox[static_cast<size_t>(i)]; }
  const std::string& Hover(int i) const {
    return s.Form.MetaTag_TextBox_ToolTip[static_cast<size_t>(i)];
  }
};

TEST(Set_Metatag_Page_TextBoxes, FieldsFromTheDecodedValuesAndTheKeywordList) {
  Panel p;
  decode::Set_MetaTag_Value(p.s, "description", "Forty-two characters of text, more or less");
  decode::Set_MetaTag_Value(p.s, "keywords", "raw, page, value");
  decode::Set_MetaTag_Value(p.s, "zentrel", "no field");
  p.s.Form.MetaTag_TextBox[4] = "stale";
  p.Keywords({"a", "b", "c"});
  p.s.EncodeComaSpaceBetweenKeywords = 1;
  Set_Metatag_Page_TextBoxes(p.s);
  EXPECT_EQ(p.Field(1), "Forty-two characters of text, more or less");
  EXPECT_EQ(p.Hover(1), "This Field is 42 Characters Long");
  EXPECT_EQ(p.Field(3), "a, b, c");
  EXPECT_EQ(p.Hover(3), "This Field is 7 Characters Long");
  EXPECT_EQ(p.Field(4), "");
  EXPECT_EQ(p.Hover(4), "");  // filled empty: no hover text

  p.s.EncodeComaSpaceBetweenKeywords = 0;
  p.Keywords({"x", "y"});
  Set_Metatag_Page_TextBoxes(p.s);
  EXPECT_EQ(p.Field(3), "x,y");

  // One keyword, like none, leaves the field empty.
  p.Keywords({"only"});
  Set_Metatag_Page_TextBoxes(p.s);
  EXPECT_EQ(p.Field(3), "");
  EXPECT_EQ(p.Hover(3), "");
  p.Keywords({});
  Set_Metatag_Page_TextBoxes(p.s);
  EXPECT_EQ(p.Field(3), "");

  // Emptied by typing, the hover text still gives the length.
  Set_MetaTag_TextBox(p.s, 1, "");
  EXPECT_EQ(p.Hover(1), "This Field is 0 Characters Long");
}

TEST(MetaTagFunctions, MarksClearingAndThePrivateClipSlots) {
  Panel p;
  for (int16_t i = 0; i < 13; ++i)
    Set_MetaTag_TextBox(p.s, i, "v" + std::to_string(i));
  MetaTagFunctions_MArk_ALL_Checkboxes_Click(p.s);
  EXPECT_EQ(p.s.Form.MetaTag_Selection_CheckBox[12], 1);
  MetaTagFunctions_UnMArk_ALL_Checkboxes_Click(p.s);
  EXPECT_EQ(p.s.Form.MetaTag_Selection_CheckBox[0], 0);

  // Pasting before any copy empties the marked field.
  p.s.Form.MetaTag_Selection_CheckBox[2] = 1;
  MetaTagFunctions_PasteClipToMarked_Click(p.s);
  EXPECT_EQ(p.Field(2), "");
  EXPECT_EQ(p.Hover(2), "This Field is 0 Characters Long");

  p.s.Form.MetaTag_Selection_CheckBox[3] = 1;
  MetaTagFunctions_CopyMarkedToClip_Click(p.s);
  EXPECT_EQ(p.s.metaTagClipSlots[3], "v3");
  MetaTagFunctions_UnMArk_ALL_Checkboxes_Click(p.s);
  MetaTagFunctions_CopyMarkedToClip_Click(p.s);  // nothing marked: slots keep their text
  Set_MetaTag_TextBox(p.s, 3, "typed over");
  p.s.Form.MetaTag_Selection_CheckBox[3] = 1;
  MetaTagFunctions_PasteClipToMarked_Click(p.s);
  EXPECT_EQ(p.Field(3), "v3");  // back into field 3, never another
  EXPECT_EQ(p.Hover(3), "This Field is 2 Characters Long");

  p.s.Form.MetaTag_Selection_CheckBox[5] = 1;
  MetaTagFunctions_ClearMarked_Click(p.s);
  EXPECT_EQ(p.Field(3), "");
  EXPECT_EQ(p.Field(5), "");
  EXPECT_EQ(p.Field(6), "v6");
  MetaTagFunctions_ClearALL_Click(p.s);
  for (int i = 0; i < 13; ++i)
    EXPECT_EQ(p.Field(i), "") << i;
  EXPECT_EQ(p.Hover(6), "This Field is 0 Characters Long");
}

}  // namespace
}  // namespace zentrel::metatags

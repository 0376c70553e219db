#include "commands/edit_meta_tags.h"

#include <gtest/gtest.h>

#include "analysis/keyword_list.h"
#include "decode/meta_tag_table.h"
#include "fake_platform.h"
#include "state/app_state.h"

namespace zentrel::commands {
namespace {

struct Panel {
  testing::FakePlatform platform;
  AppState s{platform};
  state::FormModel& f = s.Form;
  Panel() { decode::Init_MetaTag_Table(s); }
  void Keywords(const std::vector<std::string>& words) {
    analysis::Reset_Keyword_List(s);
    for (const std::string& w : words)
      analysis::Add_Word_To_KeyWord_buffer(s, w);
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
  p.s.EncodeComaSpaceBetweenKeywords = 1;
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
  MetaTagFunctions_MArk_ALL_Checkboxes_Click(p.s);
  EXPECT_EQ(p.f.MetaTag_Selection_CheckBox[12], 1);
  MetaTagFunctions_UnMArk_ALL_Checkboxes_Click(p.s);
  EXPECT_EQ(p.f.MetaTag_Selection_CheckBox[0], 0);

  p.f.MetaTag_Selection_CheckBox[2] = 1;  // pasting before any copy empties the field
  MetaTagFunctions_PasteClipToMarked_Click(p.s);
  EXPECT_EQ(p.f.MetaTag_TextBox[2], "");

  p.f.MetaTag_Selection_CheckBox[3] = 1;
  MetaTagFunctions_CopyMarkedToClip_Click(p.s);
  MetaTagFunctions_UnMArk_ALL_Checkboxes_Click(p.s);
  MetaTagFunctions_CopyMarkedToClip_Click(p.s);  // nothing marked: slots keep their text
  Set_MetaTag_TextBox(p.s, 3, "typed over");
  p.f.MetaTag_Selection_CheckBox[3] = 1;
  MetaTagFunctions_PasteClipToMarked_Click(p.s);
  EXPECT_EQ(p.f.MetaTag_TextBox[3], "v3");  // back into field 3, never another
  EXPECT_EQ(p.f.MetaTag_TextBox_ToolTip[3], "This Field is 2 Characters Long");

  p.f.MetaTag_Selection_CheckBox[5] = 1;
  MetaTagFunctions_ClearMarked_Click(p.s);
  EXPECT_EQ(p.f.MetaTag_TextBox[5], "");
  EXPECT_EQ(p.f.MetaTag_TextBox[6], "v6");
  MetaTagFunctions_ClearALL_Click(p.s);
  EXPECT_EQ(p.f.MetaTag_TextBox, decltype(p.f.MetaTag_TextBox){});
}

}  // namespace
}  // namespace zentrel::commands

#include "decode/meta_tag_table.h"

#include <gtest/gtest.h>

#include "decode_fixture.h"

namespace zentrel::decode {
namespace {

TEST(Init_MetaTag_Table, FillsFifteenRowsInTheSharedOrder) {
  testing::DecodeState d;
  AppState& s = d.s;
  EXPECT_EQ(s.MetaTagCount, 15);
  EXPECT_EQ(s.EditableMetaTagCount, 13);
  EXPECT_EQ(Find_MetaTag_Index(s, "keywords"), 3);
  EXPECT_EQ(Find_MetaTag_Index(s, "Keywords"), -1);
  EXPECT_EQ(Find_MetaTag_Index(s, "revisit-after"), 10);
  EXPECT_EQ(Find_MetaTag_Index(s, "zentrel"), 14);
  EXPECT_EQ(s.MetaTags[12].MetaTagName, "expires");
  EXPECT_EQ(s.MetaTags[13].MetaTagQuotedForm, "name=\"title\"");
  EXPECT_EQ(s.MetaTags[13].MetaTagPlainForm, "name=title");
  for (int i = 0; i < 15; ++i) {
    EXPECT_EQ(s.MetaTags[static_cast<size_t>(i)].MetaTagStart, "-1");
    EXPECT_EQ(s.MetaTags[static_cast<size_t>(i)].MetaTagIsMeta, i == 0 ? " 0" : " 1");
  }
  Set_MetaTag_Value(s, "robots", "noindex");
  Set_MetaTag_Value(s, "Robots", "ignored");
  EXPECT_EQ(Get_MetaTag_Value(s, "robots"), "noindex");
  EXPECT_EQ(Get_MetaTag_Value(s, "nothing"), "");
  s.MetaTags[14].MetaTagEnd = " 9";
  s.MetaTags[15].MetaTagValue = "outside the rows in use";
  Clear_MetaTag_Values(s);
  EXPECT_EQ(Get_MetaTag_Value(s, "robots"), "");
  EXPECT_EQ(s.MetaTags[14].MetaTagEnd, "-1");
  EXPECT_EQ(s.MetaTags[15].MetaTagValue, "outside the rows in use");
  EXPECT_THROW(Set_MetaTag_Entry(s, 21, "x", 1), RunTimeError);
}

}  // namespace
}  // namespace zentrel::decode

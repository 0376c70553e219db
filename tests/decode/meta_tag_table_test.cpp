#include "decode/meta_tag_table.h"

#include <gtest/gtest.h>

#include "decode_fixture.h"

namespace zentrel::decode {
namespace {

using testing::DecodeState;

TEST(Init_MetaTag_Table, FillsFifteenRowsInTheSharedOrder) {
  DecodeState d;
  const AppState& s = d.s;
  EXPECT_EQ(s.MetaTagCount, 15);
  EXPECT_EQ(s.EditableMetaTagCount, 13);
  const char* names[] = {"pagetitle",     "description",  "abstract",  "keywords", "generator",
                         "progid",        "author",       "copyright", "rating",   "robots",
                         "revisit-after", "distribution", "expires",   "title",    "zentrel"};
  for (int16_t i = 0; i < 15; ++i) {
    const MetaTagRow& row = s.MetaTags[static_cast<size_t>(i)];
    EXPECT_EQ(row.MetaTagName, names[i]);
    EXPECT_EQ(Find_MetaTag_Index(s, names[i]), i);
    EXPECT_EQ(row.MetaTagQuotedForm, std::string("name=\"") + names[i] + "\"");
    EXPECT_EQ(row.MetaTagPlainForm, std::string("name=") + names[i]);
    EXPECT_EQ(row.MetaTagStart, "-1");
    EXPECT_EQ(row.MetaTagEnd, "-1");
    EXPECT_EQ(row.MetaTagIsMeta, i == 0 ? " 0" : " 1");
  }
}

TEST(Find_MetaTag_Index, LookupsAreExactAndUnknownNamesAreHarmless) {
  DecodeState d;
  AppState& s = d.s;
  EXPECT_EQ(Find_MetaTag_Index(s, "keywords"), 3);
  EXPECT_EQ(Find_MetaTag_Index(s, "Keywords"), -1);
  Set_MetaTag_Value(s, "robots", "noindex");
  Set_MetaTag_Value(s, "Robots", "ignored");
  Set_MetaTag_Value(s, "nothing", "ignored");
  EXPECT_EQ(Get_MetaTag_Value(s, "robots"), "noindex");
  EXPECT_EQ(Get_MetaTag_Value(s, "nothing"), "");
  // Rows past the count in use are not looked at.
  Set_MetaTag_Entry(s, 20, "spare", 1);
  EXPECT_EQ(Find_MetaTag_Index(s, "spare"), -1);
  EXPECT_THROW(Set_MetaTag_Entry(s, 21, "x", 1), RunTimeError);
}

TEST(Clear_MetaTag_Values, EmptiesValuesAndPositionsOfRowsInUse) {
  DecodeState d;
  AppState& s = d.s;
  s.MetaTags[1].MetaTagValue = "d";
  s.MetaTags[1].MetaTagStart = " 5";
  s.MetaTags[14].MetaTagEnd = " 9";
  s.MetaTags[15].MetaTagValue = "outside";
  Clear_MetaTag_Values(s);
  EXPECT_EQ(s.MetaTags[1].MetaTagValue, "");
  EXPECT_EQ(s.MetaTags[1].MetaTagStart, "-1");
  EXPECT_EQ(s.MetaTags[14].MetaTagEnd, "-1");
  EXPECT_EQ(s.MetaTags[1].MetaTagIsMeta, " 1");
  EXPECT_EQ(s.MetaTags[15].MetaTagValue, "outside");
}

}  // namespace
}  // namespace zentrel::decode

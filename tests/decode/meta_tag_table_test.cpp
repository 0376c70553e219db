#include "decode/meta_tag_table.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"

#include "decode_fixture.h"

namespace zentrel::decode {
namespace {

TEST(Init_MetaTag_Table, FillsFifteenRowsInTheSharedOrder) {
  testing::DecodeState d;
  AppState& s = d.s;
  EXPECT_EQ(s.MetaTagCount, 15);
  EXPECT_EQ(s.EditableMetaTagCount, 13);
  const std::pair<const char*, int16_t> rows[] = {
      {"pagetitle", 0},      {"keywords", 3}, {"Keywords", -1},
      {"revisit-after", 10}, {"expires", 12}, {"zentrel", 14},
  };
  for (const auto& [name, index] : rows)
    EXPECT_EQ(Find_MetaTag_Index(s, name), index) << name;
  EXPECT_EQ(s.MetaTags[13].MetaTagQuotedForm, "name=\"title\"");
  EXPECT_EQ(s.MetaTags[13].MetaTagPlainForm, "name=title");
  EXPECT_EQ(s.MetaTags[0].MetaTagIsMeta, " 0");
  EXPECT_EQ(s.MetaTags[14].MetaTagIsMeta, " 1");

  Set_MetaTag_Value(s, "robots", "noindex");
  Set_MetaTag_Value(s, "Robots", "ignored");
  EXPECT_EQ(Get_MetaTag_Value(s, "robots"), "noindex");
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

#include "base/text.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"

namespace zentrel::text {

TEST(Text, CaseFoldingTouchesAsciiLettersOnly) {
  EXPECT_EQ(UCase("abc\xE9z"), "ABC\xE9Z");
  EXPECT_EQ(LCase("ABC\xC9Z"), "abc\xC9z");
}

TEST(Text, TrimRemovesSpacesOnly) {
  EXPECT_EQ(Trim("  x y  "), "x y");
  EXPECT_EQ(Trim("\tx "), "\tx");
  EXPECT_EQ(Trim("    "), "");
}

TEST(Text, ReplaceAllDoesNotRescanWhatItWrote) {
  EXPECT_EQ(ReplaceAll("aaaa", "aa", "a"), "aa");
  EXPECT_EQ(ReplaceAll("a,b,,c", ",", "&COMA&"), "a&COMA&b&COMA&&COMA&c");
}

TEST(Text, SignedNumberAndVal) {
  EXPECT_EQ(SignedNumber(0), " 0");
  EXPECT_EQ(SignedNumber(120), " 120");
  EXPECT_EQ(SignedNumber(-1), "-1");
  EXPECT_EQ(Val("  3 Matches"), 3.0);
  EXPECT_EQ(Val("Match"), 0.0);
  EXPECT_EQ(Val("1.5E-05"), 1.5e-05);
  EXPECT_EQ(Val("-7x"), -7.0);
}

TEST(Text, InStrIsOneBasedAndFindsOverlaps) {
  EXPECT_EQ(InStr(1, "aaa", "aa"), 1);
  EXPECT_EQ(InStr(2, "aaa", "aa"), 2);
  EXPECT_EQ(InStr(3, "aaa", "aa"), 0);
  EXPECT_EQ(InStr(9, "aaa", "a"), 0);
}

TEST(RunTimeErrors, CarryTheTraditionalCodeAndText) {
  try {
    CheckIndex(1001, 0, 1000);
    FAIL();
  } catch (const RunTimeError& e) {
    EXPECT_EQ(e.Code(), 9);
    EXPECT_STREQ(e.what(), "Run-time error '9': Subscript out of range");
  }
  EXPECT_THROW(ToInt16(32768), RunTimeError);
  EXPECT_EQ(ToInt16(-32768), -32768);
}

}  // namespace zentrel::text

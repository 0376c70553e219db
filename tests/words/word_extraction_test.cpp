#include "words/word_extraction.h"

#include <gtest/gtest.h>

#include "app/app_state.h"
#include "fake_platform.h"

namespace zentrel::words {
namespace {

using testing::FakePlatform;

struct Words {
  FakePlatform platform;
  AppState s{platform};
  Words() {
    s.WordDelimiterChars = "\"#=<>^()[]{}/.,;:+-_*&!?@%";
    Init_Get_word_string_Chr_table(s);
  }
  // Every word of the text, read the way the word count walks it.
  std::vector<std::string> All(const std::string& text) {
    s.StrippedText = text;
    std::vector<std::string> out;
    for (int32_t i = 1; i <= static_cast<int32_t>(text.size()); ++i) {
      const std::string word = Get_Word_String(s, i);
      if (!word.empty())
        out.push_back(word);
      i += static_cast<int32_t>(word.size());
    }
    return out;
  }
};

TEST(Get_Word_String, ReadsOneWordAndDropsTheTextsLastCharacter) {
  Words w;
  w.s.StrippedText = "hello world ";
  EXPECT_EQ(Get_Word_String(w.s, 1), "hello");
  EXPECT_EQ(Get_Word_String(w.s, 6), "");
  w.s.StrippedText = "abc";
  EXPECT_EQ(Get_Word_String(w.s, 1), "ab");
  EXPECT_EQ(Get_Word_String(w.s, 3), "");
  EXPECT_EQ(Get_Word_String(w.s, 4), "");
  EXPECT_EQ(Get_Word_String(w.s, 1000), "");
  EXPECT_EQ(Get_Word_String(w.s, -7), "");

  EXPECT_EQ(w.All("e-mail don't a+b 50% caf\xe9 x "),
            (std::vector<std::string>{"e", "mail", "don't", "a", "b", "50", "caf\xe9", "x"}));
  w.s.WordDelimiterChars += "'";
  Init_Get_word_string_Chr_table(w.s);
  EXPECT_EQ(w.All("don't "), (std::vector<std::string>{"don", "t"}));
}

TEST(Split_String, CutsAtCommasAndLowControlCodesKeepingQuirks) {
  Words w;
  AppState& s = w.s;
  EXPECT_EQ(Split_String(s, "red, green ,blue"), 3);
  EXPECT_EQ(s.Split_String_List[0], "red");
  EXPECT_EQ(s.Split_String_List[1], "green");
  EXPECT_EQ(s.Split_String_List[2], "blue");
  EXPECT_EQ(Split_String(s, ""), 0);
  EXPECT_EQ(s.Split_String_List[0], "red");  // earlier pieces stay
  EXPECT_EQ(Split_String(s, "a,b,"), 2);
  EXPECT_EQ(s.Split_String_List[1], "b,");
  EXPECT_EQ(Split_String(s, "a\r\nb"), 2);
  EXPECT_EQ(s.Split_String_List[0], "a\r");
  EXPECT_EQ(s.Split_String_List[1], "b");
  EXPECT_EQ(Split_String(s, "a,,b\tc"), 4);
  EXPECT_EQ(s.Split_String_List[1], "");

  std::string many;
  for (int i = 0; i < 1001; ++i)
    many += "w,";
  many.pop_back();
  EXPECT_EQ(Split_String(s, many), 1001);
  try {
    Split_String(s, many + ",x");
    FAIL() << "the 1002nd piece must not fit";
  } catch (const RunTimeError& e) {
    EXPECT_EQ(e.Code(), RunTimeError::kSubscriptOutOfRange);
  }
}

TEST(Trim_Spaces_String, OnlySpacesAreTrimmed) {
  EXPECT_EQ(Trim_Spaces_String("  x y  "), "x y");
  EXPECT_EQ(Trim_Spaces_String("\tx"), "\tx");
  EXPECT_EQ(Trim_Spaces_String("   "), "");
  EXPECT_EQ(Trim_Spaces_String(""), "");
}

TEST(MakeStringSingleSpaced, CollapsesDoubleQuotePairsOnly) {
  EXPECT_EQ(MakeStringSingleSpaced("a\"\"b"), "a b");
  EXPECT_EQ(MakeStringSingleSpaced("\"\"\"\""), "  ");
  EXPECT_EQ(MakeStringSingleSpaced("\"\"\""), " \"");
  EXPECT_EQ(MakeStringSingleSpaced("a  b"), "a  b");
}

}  // namespace
}  // namespace zentrel::words

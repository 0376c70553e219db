#include "words/word_extraction.h"

#include "base/run_time_error.h"
#include "started_program.h"

namespace zentrel::words {
namespace {

using List = std::vector<std::string>;

struct Words : testing::Started {
  // Every word of the text, read the way the word count walks it.
  List All(const std::string& text) {
    s.StrippedText = text;
    List out;
    for (int32_t i = 1; i <= static_cast<int32_t>(text.size()); ++i) {
      const std::string word = Get_Word_String(s, i);
      if (!word.empty())
        out.push_back(word);
      i += static_cast<int32_t>(word.size());
    }
    return out;
  }
  List Split(const std::string& text) {
    const int16_t n = Split_String(s, text);
    return {s.Split_String_List.begin(), s.Split_String_List.begin() + n};
  }
};

TEST(Get_Word_String, ReadsOneWordAndDropsTheTextsLastCharacter) {
  Words w;
  EXPECT_EQ(w.All("e-mail don't a+b 50% caf\xe9 x "),
            (List{"e", "mail", "don't", "a", "b", "50", "caf\xe9", "x"}));
  EXPECT_EQ(w.All("abc"), List{"ab"});
  for (int32_t start : {3, 4, 1000, -7})
    EXPECT_EQ(Get_Word_String(w.s, start), "") << start;
  w.s.WordDelimiterChars += "'";
  Init_Get_word_string_Chr_table(w.s);
  EXPECT_EQ(w.All("don't "), (List{"don", "t"}));
}

TEST(Split_String, CutsAtCommasAndLowControlCodesKeepingQuirks) {
  Words w;
  const std::pair<std::string, List> cases[] = {
      {"red, green ,blue", {"red", "green", "blue"}},
      {"", {}},
      {"a,b,", {"a", "b,"}},
      {"a\r\nb", {"a\r", "b"}},
      {"a,,b\tc", {"a", "", "b", "c"}},
  };
  for (const auto& [text, pieces] : cases)
    EXPECT_EQ(w.Split(text), pieces) << text;

  std::string many(2001, ',');
  for (size_t i = 0; i < many.size(); i += 2)
    many[i] = 'w';
  EXPECT_EQ(w.Split(many).size(), 1001u);
  try {
    w.Split(many + ",x");
    FAIL() << "the 1002nd piece must not fit";
  } catch (const RunTimeError& e) {
    EXPECT_EQ(e.Code(), RunTimeError::kSubscriptOutOfRange);
  }
}

TEST(Trim_Spaces_String, OnlySpacesAreTrimmed) {
  EXPECT_EQ(Trim_Spaces_String("  x y  "), "x y");
  EXPECT_EQ(Trim_Spaces_String("\tx"), "\tx");
}

TEST(MakeStringSingleSpaced, CollapsesDoubleQuotePairsOnly) {
  const std::pair<const char*, const char*> cases[] = {
      {"a\"\"b", "a b"}, {"\"\"\"\"", "  "}, {"\"\"\"", " \""}, {"a  b", "a  b"}};
  for (const auto& [in, out] : cases)
    EXPECT_EQ(MakeStringSingleSpaced(in), out) << in;
}

}  // namespace
}  // namespace zentrel::words

#include "words/word_count.h"

#include "base/run_time_error.h"
#include "commands/word_filters.h"
#include "started_program.h"
#include "words/filter_dictionary.h"
#include "words/word_extraction.h"

namespace zentrel::words {
namespace {

using Words = std::vector<std::string>;

// Filtering with the given words only.
struct Counter : testing::Started {
  explicit Counter(const Words& filters = {}) {
    s.FilterCount = 0;
    for (const std::string& w : filters)
      Add_Word_Filter(s, w);
    Build_Filter_Words_Text(s);
  }
  // The page's words, then the dictionary as "word=count" in its sorted order.
  std::pair<Words, Words> Count(const std::string& text) {
    Init_Document_Word_List(s);
    s.StrippedText = text;
    Word_Count_Stripped_Text(s);
    Words dictionary;
    for (size_t i = 0; i < static_cast<size_t>(s.UniqueWordCount); ++i)
      dictionary.push_back(s.UniqueWords[i] + "=" + std::to_string(s.UniqueWordCounts[i]));
    return {{s.DocumentWords.begin(), s.DocumentWords.begin() + s.DocumentWordCount}, dictionary};
  }
  // Every word of the text, read the way the word count walks it.
  Words All(const std::string& text) {
    s.StrippedText = text;
    Words out;
    for (int32_t i = 1; i <= static_cast<int32_t>(text.size()); ++i) {
      const std::string word = Get_Word_String(s, i);
      if (!word.empty())
        out.push_back(word);
      i += static_cast<int32_t>(word.size());
    }
    return out;
  }
  Words Rebuild(const std::string& box) {
    s.Form.WordFiltersPage_WordDictionary = box;
    commands::Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
    return {s.FilterWords.begin(), s.FilterWords.begin() + s.FilterCount};
  }
  Words Split(const std::string& text) {
    const int16_t n = Split_String(s, text);
    return {s.Split_String_List.begin(), s.Split_String_List.begin() + n};
  }
};

// Distinct letter-only words: "aaaa", "aaab", ...
std::string Distinct(int n) {
  std::string w = "aaaa";
  for (int k = 3; k >= 0; --k, n /= 26)
    w[static_cast<size_t>(k)] = static_cast<char>('a' + n % 26);
  return w;
}

std::string Text(int n, std::string (*word)(int)) {
  std::string text;
  for (int i = 0; i < n; ++i)
    text += word(i) + " ";
  return text;
}

TEST(Word_Count_Stripped_Text, OneLetterWordsSkippedAndTiesInReversePageOrder) {
  Counter c;
  EXPECT_EQ(c.Count("a an the cat cat "),
            std::make_pair(Words{"an", "the", "cat", "cat"}, Words{"cat=2", "the=1", "an=1"}));
  EXPECT_EQ(c.Count("zz yy xx yy ww xx ").second, (Words{"xx=2", "yy=2", "ww=1", "zz=1"}));
  // The empty slot after the last word sorts last and stays empty.
  EXPECT_EQ(c.s.UniqueWords[4], "");
  EXPECT_EQ(c.s.UniqueWordCounts[4], 0);
}

TEST(Word_Count_Stripped_Text, FilterWordsLeaveTheDictionaryOnly) {
  // "The" is counted apart from "the" but is still a filter word.
  Counter c({"the"});
  EXPECT_EQ(c.Count("a an the cat The cat "),
            std::make_pair(Words{"an", "the", "cat", "The", "cat"}, Words{"cat=2", "an=1"}));
  // An entry with a space in it filters none of its words.
  Counter phrase({"cats and dogs"});
  EXPECT_EQ(phrase.Count("cats and dogs ").second, (Words{"dogs=1", "and=1", "cats=1"}));
}

TEST(Word_Count_Stripped_Text, CaseAndLetterOnlyFlags) {
  Counter c;
  EXPECT_EQ(c.Count("mp3 don't Word word ok "),
            std::make_pair(Words{"Word", "word", "ok"}, Words{"ok=1", "word=1", "Word=1"}));
  c.s.WordMatchIgnoreAlphaNumeric = 0;
  c.s.WordMatchForceCase = 1;
  EXPECT_EQ(c.Count("mp3 don't Word word ok ").second,
            (Words{"word=2", "ok=1", "don't=1", "mp3=1"}));
}

TEST(Word_Count_Stripped_Text, EverySpellingKeptWholeAndCountedOnAfterASort) {
  Counter c;
  const std::string a = "abcdefghijklmnopqrstuvwxyz", b = "abcdefghijklmnopqrstuvwxyy";
  EXPECT_EQ(c.Count(a + " " + b + " " + a + " abcdefghijklmnop ").second,
            (Words{a + "=2", "abcdefghijklmnop=1", b + "=1"}));

  // The dictionary stays countable after its sort moved the words.
  c.Count("dog cat cat ");
  c.s.WordMatchForceCase = 1;  // folded before it is looked up
  Add_Word_To_Dictionary(c.s, "DOG");
  Add_Word_To_Dictionary(c.s, "eel");
  EXPECT_EQ(c.s.UniqueWordCount, 3);
  EXPECT_EQ(std::make_pair(c.s.UniqueWords[1], c.s.UniqueWordCounts[1]),
            std::make_pair(std::string("dog"), int16_t{2}));
  EXPECT_EQ(std::make_pair(c.s.UniqueWords[2], c.s.UniqueWordCounts[2]),
            std::make_pair(std::string("eel"), int16_t{1}));
}

TEST(Word_Count_Stripped_Text, LimitsOfTheCounts) {
  Counter c;
  auto often = [](int) { return std::string("often"); };
  EXPECT_EQ(c.Count(Text(1000, often)).second, Words{"often=1000"});
  try {
    c.Count(Text(1001, often));
    FAIL() << "a word counted 1001 times must end the count";
  } catch (const RunTimeError& e) {
    EXPECT_EQ(e.Code(), RunTimeError::kSubscriptOutOfRange);
  }

  EXPECT_EQ(c.Count(Text(32767, Distinct)).second.size(), 32767u);
  EXPECT_EQ(c.s.UniqueWords[0], Distinct(32766));  // sorted though every table was full
  EXPECT_EQ(c.s.DocumentWordsCapacity, 33000);     // grown by 500 whenever it was full
  try {
    c.Count(Text(32768, Distinct));
    FAIL() << "the 32768th distinct word must overflow";
  } catch (const RunTimeError& e) {
    EXPECT_EQ(e.Code(), RunTimeError::kOverflow);
  }
}

TEST(Get_Word_String, ReadsOneWordAndDropsTheTextsLastCharacter) {
  Counter w;
  EXPECT_EQ(w.All("e-mail don't a+b 50% caf\xe9 x "),
            (Words{"e", "mail", "don't", "a", "b", "50", "caf\xe9", "x"}));
  EXPECT_EQ(w.All("abc"), Words{"ab"});
  for (int32_t start : {3, 4, 1000, -7})
    EXPECT_EQ(Get_Word_String(w.s, start), "") << start;
  w.s.WordDelimiterChars += "'";
  Init_Get_word_string_Chr_table(w.s);
  EXPECT_EQ(w.All("don't "), (Words{"don", "t"}));
}

TEST(Split_String, CutsAtCommasAndLowControlCodesKeepingQuirks) {
  Counter w;
  const std::pair<std::string, Words> cases[] = {
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

TEST(MakeStringSingleSpaced, CollapsesDoubleQuotePairsOnly) {
  const std::pair<const char*, const char*> cases[] = {
      {"a\"\"b", "a b"}, {"\"\"\"\"", "  "}, {"\"\"\"", " \""}, {"a  b", "a  b"}};
  for (const auto& [in, out] : cases)
    EXPECT_EQ(MakeStringSingleSpaced(in), out) << in;
}

using commands::Load_Word_Filter_Dictionary;
using commands::Resort_And_Removed_Doubles_From_Filter_Dictionary;
using commands::Save_Word_Filter_Dictionary;

TEST(Resort_And_Removed_Doubles_From_Filter_Dictionary, CleansSortsAndDropsRepeats) {
  Counter d;
  EXPECT_EQ(d.Rebuild("The, and\r\nof\r\nthe"), (Words{"and", "of", "the"}));
  EXPECT_EQ(d.s.Form.WordFiltersPage_WordDictionary, "and\r\nof\r\nthe\r\n");
  Build_Filter_Words_Text(d.s);
  EXPECT_EQ(d.s.FilterWordsText, " and of the  ");

  // Ordinal order, byte by byte; a lone LF or a tab does not separate entries.
  EXPECT_EQ(d.Rebuild("b2\r\nb10\r\n\xE4h\r\nzed\nyes\r\nb10,, \t x"),
            (Words{"\t x", "b10", "b2", "zed\nyes", "\xE4h"}));
  // A single word leaves an empty list; two equal words are a repeat: one stays.
  EXPECT_EQ(d.Rebuild("lonely"), Words{});
  EXPECT_EQ(d.Rebuild("x1,X1"), Words{"x1"});
}

// CR-only line ends end entries too.
TEST(Load_Word_Filter_Dictionary, ReadsListItemsAndSavesTheBox) {
  Counter d;
  testing::WriteFile(d.folder.File("user.txt"), "cats and dogs\r\"x, y\",Zebra\r");
  d.s.Form.WordFiltersPage_WordDictionary = "unchanged";
  Load_Word_Filter_Dictionary(d.s, d.folder.File("missing.txt"), "");
  EXPECT_EQ(d.s.Form.WordFiltersPage_WordDictionary, "unchanged");

  Load_Word_Filter_Dictionary(d.s, d.folder.File("user.txt"), "and\r\n");
  EXPECT_EQ(d.s.Form.WordFiltersPage_WordDictionary, "and\r\ncats and dogs\r\nx, y\r\nZebra\r\n");
  Save_Word_Filter_Dictionary(d.s, d.folder.File("saved.txt"));
  EXPECT_EQ(testing::ReadFile(d.folder.File("saved.txt")),
            "and\r\ncats and dogs\r\nx, y\r\nZebra\r\n\r\n");
}

}  // namespace
}  // namespace zentrel::words

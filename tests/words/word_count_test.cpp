#include "words/word_count.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/app_state.h"
#include "base/run_time_error.h"
#include "fake_platform.h"
#include "words/filter_dictionary.h"
#include "words/word_extraction.h"

namespace zentrel::words {
namespace {

struct Counter {
  testing::FakePlatform platform;
  AppState s{platform};

  Counter() {
    for (int c = 'a'; c <= 'z'; ++c)
      s.LetterTable[static_cast<size_t>(c)] = 1;
    for (int c = 'A'; c <= 'Z'; ++c)
      s.LetterTable[static_cast<size_t>(c)] = 1;
    s.WordDelimiterChars = "\"#=<>^()[]{}/.,;:+-_*&!?@%";
    Init_Get_word_string_Chr_table(s);
    s.WordMatchIgnoreAlphaNumeric = 1;
    Filters({});
    Init_Document_Word_List(s);
  }

  void Filters(const std::vector<std::string>& words) {
    s.FilterCapacity = 1000;
    s.FilterWords.assign(1001, "");
    s.FilterCount = 0;
    for (const std::string& w : words)
      Add_Word_Filter(s, w);
    Build_Filter_Words_Text(s);
  }

  void Count(const std::string& text) {
    Init_Document_Word_List(s);
    s.StrippedText = text;
    Word_Count_Stripped_Text(s);
  }

  std::vector<std::string> List() const {
    std::vector<std::string> out;
    for (int i = 0; i < s.DocumentWordCount; ++i)
      out.emplace_back(s.DocumentWords[static_cast<size_t>(i)]);
    return out;
  }
  std::vector<std::string> Dictionary() const {
    std::vector<std::string> out;
    for (int i = 0; i < s.UniqueWordCount; ++i)
      out.push_back(s.UniqueWords[static_cast<size_t>(i)] + "=" +
                    std::to_string(s.UniqueWordCounts[static_cast<size_t>(i)]));
    return out;
  }
};

using Words = std::vector<std::string>;

// Distinct letter-only words: "aaaa", "aaab", ...
std::string Distinct(int n) {
  std::string w = "aaaa";
  for (int k = 3; k >= 0; --k, n /= 26)
    w[static_cast<size_t>(k)] = static_cast<char>('a' + n % 26);
  return w;
}

TEST(Word_Count_Stripped_Text, OneLetterWordsSkippedAndTiesInReversePageOrder) {
  Counter c;
  c.Count("a an the cat cat ");
  EXPECT_EQ(c.List(), (Words{"an", "the", "cat", "cat"}));
  EXPECT_EQ(c.Dictionary(), (Words{"cat=2", "the=1", "an=1"}));
  EXPECT_EQ(c.s.DocumentWordsUpper[2], "CAT");

  c.Count("zz yy xx yy ww xx ");
  EXPECT_EQ(c.Dictionary(), (Words{"xx=2", "yy=2", "ww=1", "zz=1"}));
  // The empty slot after the last word sorts last and stays empty.
  EXPECT_EQ(c.s.UniqueWords[4], "");
  EXPECT_EQ(c.s.UniqueWordCounts[4], 0);

  c.Count("");
  EXPECT_EQ(c.s.UniqueWordCount, 0);
  EXPECT_EQ(c.s.DocumentWordCount, 0);
}

TEST(Word_Count_Stripped_Text, FilterWordsLeaveTheDictionaryOnly) {
  Counter c;
  c.Filters({"the"});
  c.Count("a an the cat The cat ");
  EXPECT_EQ(c.List(), (Words{"an", "the", "cat", "The", "cat"}));
  // "The" is counted apart from "the" but is still a filter word.
  EXPECT_EQ(c.Dictionary(), (Words{"cat=2", "an=1"}));

  // An entry with a space in it filters none of its words.
  c.Filters({"cats and dogs"});
  c.Count("cats and dogs ");
  EXPECT_EQ(c.Dictionary(), (Words{"dogs=1", "and=1", "cats=1"}));
  EXPECT_EQ(c.s.FilterWordsText, " cats and dogs  ");
}

TEST(Word_Count_Stripped_Text, CaseAndLetterOnlyFlags) {
  Counter c;
  c.Count("mp3 don't Word word ok ");
  EXPECT_EQ(c.List(), (Words{"Word", "word", "ok"}));
  EXPECT_EQ(c.Dictionary(), (Words{"ok=1", "word=1", "Word=1"}));

  c.s.WordMatchIgnoreAlphaNumeric = 0;
  c.s.WordMatchForceCase = 1;
  c.Count("mp3 don't Word word ok ");
  EXPECT_EQ(c.List(), (Words{"mp3", "don't", "word", "word", "ok"}));
  EXPECT_EQ(c.Dictionary(), (Words{"word=2", "ok=1", "don't=1", "mp3=1"}));
}

TEST(Word_Count_Stripped_Text, EverySpellingKeptWholeAndCountedOnAfterASort) {
  Counter c;
  const std::string a = "abcdefghijklmnopqrstuvwxyz", b = "abcdefghijklmnopqrstuvwxyy";
  c.Count(a + " " + b + " " + a + " abcdefghijklmnop ");
  EXPECT_EQ(c.Dictionary(), (Words{a + "=2", "abcdefghijklmnop=1", b + "=1"}));

  // The dictionary stays countable after its sort moved the words.
  c.Count("dog cat cat ");
  Add_Word_To_Dictionary(c.s, "dog");
  Add_Word_To_Dictionary(c.s, "eel");
  EXPECT_EQ(c.Dictionary(), (Words{"cat=2", "dog=2", "eel=1"}));
}

TEST(Word_Count_Stripped_Text, LimitsOfTheCounts) {
  Counter c;
  std::string text;
  for (int i = 0; i < 1000; ++i)
    text += "often ";
  c.Count(text);
  EXPECT_EQ(c.Dictionary(), (Words{"often=1000"}));

  try {
    c.Count(text + "often ");
    FAIL() << "a word counted 1001 times must end the count";
  } catch (const RunTimeError& e) {
    EXPECT_EQ(e.Code(), RunTimeError::kSubscriptOutOfRange);
  }

  // Exactly full tables (2001 words fill indexes 0..2000) still sort.
  text.clear();
  for (int i = 0; i < 2001; ++i)
    text += Distinct(i) + " ";
  c.Count(text);
  EXPECT_EQ(c.s.UniqueWordCount, 2001);
  EXPECT_EQ(c.s.UniqueWords[0], Distinct(2000));
  EXPECT_EQ(c.s.UniqueWords[2000], Distinct(0));

  text.clear();
  for (int i = 0; i < 32767; ++i)
    text += Distinct(i) + " ";
  c.Count(text);
  EXPECT_EQ(c.s.UniqueWordCount, 32767);
  EXPECT_EQ(c.s.DocumentWordCount, 32767);
  EXPECT_EQ(c.s.DocumentWordsCapacity, 33000);  // grown by 500 whenever it was full
  try {
    c.Count(text + Distinct(32767) + " ");
    FAIL() << "the 32768th distinct word must overflow";
  } catch (const RunTimeError& e) {
    EXPECT_EQ(e.Code(), RunTimeError::kOverflow);
  }
}

}  // namespace
}  // namespace zentrel::words

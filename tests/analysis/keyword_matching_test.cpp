#include "analysis/keyword_matching.h"

#include <random>
#include <sstream>

#include "base/text.h"
#include "started_program.h"
#include "words/word_extraction.h"

namespace zentrel::analysis {
namespace {

using Counts = std::vector<int16_t>;

struct Matching : testing::Started {
  Matching(const std::vector<std::string>& keywords, const std::vector<std::string>& words) {
    Keywords(keywords);
    PageWords(words);
  }
  Counts Body() {
    Tally_Current_Documents_Keyword_Matches(s);
    return {s.KeywordBodyMatches.begin(), s.KeywordBodyMatches.begin() + s.KeywordCount};
  }
};

// The tallies as their steps read: repeated searches from one past the last hit, and a
// word-by-word comparison at every position up to one past the last word.
int64_t Literal_Text_Count(const std::string& text, const std::string& keyword) {
  int64_t n = 0;
  for (int64_t p = text::InStr(1, text, keyword); p != 0; p = text::InStr(p + 1, text, keyword))
    ++n;
  return n;
}

int64_t Literal_Word_Count(std::vector<std::string> w, const std::string& keyword) {
  std::vector<std::string> kw;
  std::istringstream split(text::Trim(words::MakeStringSingleSpaced(keyword)));
  for (std::string part; split >> part;)
    kw.push_back(part);
  if (kw.empty())
    kw.emplace_back();
  const size_t count = w.size(), last = kw.size() - 1;
  w.emplace_back();  // the slot one past the last word
  int64_t n = 0;
  for (size_t k = 0; k <= count; ++k) {
    if (w[k] != kw[0])
      continue;
    size_t h = 0;
    for (size_t j = 0; j <= last; ++j)
      h += k + j < count && kw[j] == w[k + j];
    n += last == 0 || h == last + 1;
  }
  return n;
}

TEST(Tally_Current_Documents_Keyword_Matches, EqualsTheLiteralStepsOnRandomInputs) {
  Matching m({}, {});
  std::mt19937 rng(12);
  auto pick = [&](size_t n) { return std::uniform_int_distribution<size_t>(0, n - 1)(rng); };
  auto random_text = [&](const std::string& letters, size_t longest) {
    std::string t(pick(longest + 1), ' ');
    for (char& c : t)
      c = letters[pick(letters.size())];
    return t;
  };
  for (int round = 0; round < 3000; ++round) {
    const bool upper = pick(2) == 1;
    m.s.KeywordsForceSameCase = upper;
    // Now and then a list big enough that the automaton keeps only its shortest nodes dense,
    // with texts of the same two letters, so that they reach its deep nodes.
    const bool big = round % 8 == 0;
    std::vector<std::string> keywords(big ? 90 : pick(9));
    for (size_t i = 0; i < keywords.size(); ++i)  // some repeat an earlier one
      keywords[i] = i > 0 && pick(5) == 0 ? keywords[pick(i)]
                    : big                 ? random_text("ab", 20)
                                          : random_text("aAb \"", 7);
    std::vector<std::string> page(pick(30));
    for (std::string& word : page)
      word = random_text("aAb", 3) + "a";
    m.Keywords({});
    std::copy(keywords.begin(), keywords.end(), m.s.KeywordList.begin());  // blanks included
    m.s.KeywordCount = static_cast<int16_t>(keywords.size());
    m.PageWords(page);
    m.s.TitleText = big ? random_text("ab", 200) : random_text("aAb ", 40);
    m.s.DocumentText = big ? random_text("ab", 200) : random_text("aAb<", 60);
    auto fold = [upper](const std::string& t) { return upper ? text::UCase(t) : t; };
    std::vector<std::string> folded;
    std::transform(page.begin(), page.end(), std::back_inserter(folded), fold);
    Counts title, text, words;
    for (const std::string& k : keywords) {
      title.push_back(static_cast<int16_t>(Literal_Text_Count(fold(m.s.TitleText), fold(k))));
      text.push_back(static_cast<int16_t>(Literal_Text_Count(fold(m.s.DocumentText), fold(k))));
      words.push_back(static_cast<int16_t>(Literal_Word_Count(folded, fold(k))));
    }
    SCOPED_TRACE(::testing::PrintToString(keywords) + " in " + m.s.TitleText + " | " +
                 m.s.DocumentText + " | " + ::testing::PrintToString(page));
    const auto found = std::count_if(title.begin(), title.end(), [](int16_t n) { return n > 0; });
    EXPECT_EQ(Tally_Current_TITLE_Keyword_Matches(m.s), found);
    EXPECT_EQ(
        Counts(m.s.KeywordTitleMatches.begin(), m.s.KeywordTitleMatches.begin() + m.s.KeywordCount),
        title);
    m.s.KeywordsMatchScanType = 0;
    EXPECT_EQ(m.Body(), text);
    std::fill(m.s.KeywordBodyMatches.begin(), m.s.KeywordBodyMatches.end(), int16_t{0});
    m.s.KeywordsMatchScanType = 1;
    EXPECT_EQ(m.Body(), words);
    if (HasFailure())
      return;
  }
}

// A count past 32767 is the Overflow error, raised at the keyword that overflows; the
// keywords before it keep their new counts.
TEST(Tally_Current_Documents_Keyword_Matches, CountsPast32767AreOverflow) {
  Matching m({"b", "a", "c"}, std::vector<std::string>(32767, "a"));
  m.s.TitleText = std::string(32768, 'a') + "b";
  m.s.DocumentText = std::string(32767, 'a') + "b";
  m.s.KeywordsMatchScanType = 0;
  auto expect_overflow = [](auto&& tally) {
    try {
      tally();
      ADD_FAILURE() << "no overflow";
    } catch (const RunTimeError& e) {
      EXPECT_EQ(e.Code(), RunTimeError::kOverflow);
    }
  };
  expect_overflow([&] { Tally_Current_TITLE_Keyword_Matches(m.s); });
  EXPECT_EQ(m.s.KeywordTitleMatches[0], 1);
  EXPECT_EQ(m.Body(), (Counts{1, 32767, 0}));  // just inside the limit
  expect_overflow([&] { m.Body(); });          // counts add to the previous ones
  EXPECT_EQ(m.s.KeywordBodyMatches[0], 2);
  m.s.KeywordsMatchScanType = 1;
  m.s.KeywordBodyMatches[1] = 1;
  expect_overflow([&] { m.Body(); });
}

TEST(Check_Percentage_String, CutsToFourCharacters) {
  const std::pair<const char*, const char*> cases[] = {
      {"2.857142", "2.85"}, {" 33.33", "33.3"}, {" 100", "100"},      {" .5", "0.5"},
      {"0", "0.00"},        {"", "0.00"},       {" 1.5E-05", "0.00"},
  };
  for (const auto& [in, out] : cases)
    EXPECT_EQ(Check_Percentage_String(in), out) << in;
}

// Fifteen significant digits, no leading zero, exponent form for very large or small values.
TEST(Double_To_Text, ClassicDecimalText) {
  const std::pair<double, const char*> cases[] = {
      {0.1 + 0.2, " .3"}, {-2.25, "-2.25"}, {1.5e-5, " 1.5E-05"}, {1e15, " 1E+15"}};
  for (const auto& [value, text] : cases)
    EXPECT_EQ(Double_To_Text(value), text);
}

TEST(Keyword_Density_Text, PercentOfAllWords) {
  Matching m({"a"}, {});
  m.s.KeywordBodyMatches[0] = 3;
  m.s.DocumentWordCount = 7;
  EXPECT_EQ(Keyword_Density_Text(m.s, 0), "42.8");
  m.s.DocumentWordCount = 200000;  // written in exponent form
  EXPECT_EQ(Keyword_Density_Text(m.s, 0), "0.00");
  m.s.DocumentWordCount = 0;
  EXPECT_EQ(Keyword_Density_Text(m.s, 0), "0.00");
}

}  // namespace
}  // namespace zentrel::analysis

#include "analysis/keyword_matching.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <cstdio>
#include <string_view>
#include <vector>

#include "analysis/pattern_automaton.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "state/app_state.h"
#include "words/word_extraction.h"

namespace zentrel::analysis {

namespace {

std::string UnderCaseRule(const AppState& s, std::string_view t) {
  return s.KeywordsForceSameCase != 0 ? text::UCase(t) : std::string(t);
}

constexpr size_t kBytesBetweenEvents = 0xFFFF;  // the window repaints every 64 KiB searched
constexpr int32_t kWordsBetweenEvents = 4095;

// How often each keyword, under the case rule, occurs in the text when every search starts
// one character after the start of the previous hit: overlapping occurrences and occurrences
// inside longer words all count. An empty keyword is found at every position up to one past
// the end. One automaton pass serves all keywords.
std::vector<int64_t> Occurrences_In_Text(AppState& s, std::string_view text) {
  std::vector<int64_t> found;
  if (s.KeywordCount <= 0)
    return found;
  std::array<unsigned char, 256> fold{};
  for (size_t c = 0; c < fold.size(); ++c) {
    const auto byte = static_cast<char>(c);
    fold[c] =
        static_cast<unsigned char>(s.KeywordsForceSameCase != 0 ? text::UpperAscii(byte) : byte);
  }
  std::vector<std::string> keywords;
  for (int16_t i = 0; i < s.KeywordCount; ++i)
    keywords.push_back(UnderCaseRule(s, At(s.KeywordList, i)));
  Pattern_Automaton automaton(keywords, static_cast<uint32_t>(fold.size()));
  int32_t state = Pattern_Automaton::kRoot;
  for (size_t p = 0; p < text.size(); ++p) {
    if ((p & kBytesBetweenEvents) == kBytesBetweenEvents)
      s.platform->DoEvents();
    state = automaton.Next(state, fold[static_cast<unsigned char>(text[p])]);
    automaton.Count(state);
  }
  const std::vector<int64_t>& totals = automaton.Occurrences();
  for (size_t i = 0; i < keywords.size(); ++i) {
    found.push_back(keywords[i].empty() ? static_cast<int64_t>(text.size()) + 1
                                        : totals[static_cast<size_t>(automaton.End(i))]);
  }
  return found;
}

// The keyword cut into its words at runs of spaces; an empty keyword is one empty word.
std::vector<std::string> SplitAtSpaces(const std::string& phrase) {
  std::vector<std::string> out;
  size_t i = 0;
  while (true) {
    size_t end = phrase.find(' ', i);
    out.push_back(phrase.substr(i, end == std::string::npos ? std::string::npos : end - i));
    if (end == std::string::npos)
      break;
    i = phrase.find_first_not_of(' ', end);
    if (i == std::string::npos)
      break;
  }
  return out;
}

void PrepareKeywordWords(AppState& s) {
  const size_t slots = static_cast<size_t>(s.KeywordCapacity) + 1;
  s.KeywordWords.assign(slots, std::vector<std::string>());
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    const std::string phrase =
        text::Trim(words::MakeStringSingleSpaced(UnderCaseRule(s, At(s.KeywordList, i))));
    std::vector<std::string> parts = SplitAtSpaces(phrase);
    // A keyword's words are counted in 16 bits: 32768 words or more overflow.
    ToInt16(static_cast<int64_t>(parts.size()));
    At(s.KeywordWords, i) = std::move(parts);
  }
}

void ScanText(AppState& s) {
  const std::vector<int64_t> found = Occurrences_In_Text(s, s.DocumentText);
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    int16_t& matches = At(s.KeywordBodyMatches, i);
    matches = ToInt16(int64_t{matches} + found[static_cast<size_t>(i)]);
  }
}

// The document word equals the keyword word, which the case rule has already upper-cased
// when it applies; the document word is folded on the fly rather than copied.
bool Same_Word(std::string_view word, std::string_view keywordWord, bool upper) {
  if (word.size() != keywordWord.size())
    return false;
  if (!upper)
    return word == keywordWord;
  for (size_t c = 0; c < word.size(); ++c) {
    if (text::UpperAscii(word[c]) != keywordWord[c])
      return false;
  }
  return true;
}

// The distinct words of the keywords (already under the case rule), numbered from 0; a
// document word, folded on the fly, is looked up by its hash.
class Keyword_Word_Ids {
 public:
  explicit Keyword_Word_Ids(bool upper) : upper_(upper), maybe_(kLengths) {}

  // The id of a keyword word, given when the word is first seen. The word must outlive this.
  uint32_t Add(std::string_view word) {
    const int32_t known = Find_Known(word);
    if (known >= 0)
      return static_cast<uint32_t>(known);
    words_.push_back(word);
    maybe_[Row(word)][First(word)] = true;
    if (words_.size() * 2 > slots_.size())
      Rehash();
    else
      Place(words_.size() - 1);
    return static_cast<uint32_t>(words_.size() - 1);
  }

  // The id of a document word, or -1 when no keyword holds it. Most words are ruled out by
  // their length and first character alone.
  int32_t Find(std::string_view word) const {
    return maybe_[Row(word)][First(word)] ? Find_Known(word) : -1;
  }

  uint32_t Count() const { return static_cast<uint32_t>(words_.size()); }

 private:
  static constexpr size_t kLengths = 64;  // longer words share the last row

  static size_t Row(std::string_view word) { return std::min(word.size(), kLengths - 1); }
  unsigned char First(std::string_view word) const {
    return word.empty() ? 0
                        : static_cast<unsigned char>(upper_ ? text::UpperAscii(word[0]) : word[0]);
  }

  int32_t Find_Known(std::string_view word) const {
    if (slots_.empty())
      return -1;
    const size_t mask = slots_.size() - 1;
    for (size_t i = Hash(word) & mask; slots_[i] >= 0; i = (i + 1) & mask) {
      if (Same_Word(word, words_[static_cast<size_t>(slots_[i])], upper_))
        return slots_[i];
    }
    return -1;
  }

  size_t Hash(std::string_view word) const {
    uint64_t h = 0xCBF29CE484222325ULL;
    for (const char c : word)
      h = (h ^ static_cast<unsigned char>(upper_ ? text::UpperAscii(c) : c)) * 0x100000001B3ULL;
    return static_cast<size_t>(h ^ (h >> 32));
  }

  void Place(size_t id) {
    const size_t mask = slots_.size() - 1;
    size_t i = Hash(words_[id]) & mask;
    while (slots_[i] >= 0)
      i = (i + 1) & mask;
    slots_[i] = static_cast<int32_t>(id);
  }

  void Rehash() {
    slots_.assign(std::max<size_t>(16, slots_.size() * 2), -1);
    for (size_t id = 0; id < words_.size(); ++id)
      Place(id);
  }

  bool upper_;
  std::vector<std::array<bool, 256>> maybe_;  // [length row][first character]
  std::vector<std::string_view> words_;
  std::vector<int32_t> slots_;
};

// One automaton pass over the word ids for all phrases: a phrase matches only where all of
// its words follow one another inside the list. The slot one past the last word holds no
// word, so only a keyword that is a single empty word matches there.
void ScanWords(AppState& s) {
  PrepareKeywordWords(s);
  const int32_t count = s.DocumentWordCount;
  if (count > 0)
    CheckIndex(count - 1, 0, static_cast<int64_t>(s.DocumentWords.size()) - 1);

  Keyword_Word_Ids ids(s.KeywordsForceSameCase != 0);
  std::vector<std::vector<uint32_t>> phrases(static_cast<size_t>(s.KeywordCount));
  for (size_t i = 0; i < phrases.size(); ++i) {
    for (const std::string& word : s.KeywordWords[i])
      phrases[i].push_back(ids.Add(word));
  }
  Pattern_Automaton automaton(phrases, ids.Count());
  // A page repeats its spellings: each is looked up once.
  const state::WordList& list = s.DocumentWords;
  std::vector<int32_t> spellingIds(list.Spellings());
  for (uint32_t spelling = 0; spelling < spellingIds.size(); ++spelling)
    spellingIds[spelling] = ids.Find(list.Spelling(spelling));
  const int32_t emptyId = ids.Find({});  // the slots past the stored words
  int32_t state = Pattern_Automaton::kRoot;
  for (int32_t k = 0; k < count; ++k) {
    if ((k & kWordsBetweenEvents) == kWordsBetweenEvents)
      s.platform->DoEvents();
    const auto at = static_cast<size_t>(k);
    const int32_t id = at < list.Stored() ? spellingIds[list.SpellingOf(at)] : emptyId;
    state = id < 0 ? Pattern_Automaton::kRoot : automaton.Next(state, static_cast<uint32_t>(id));
    automaton.Count(state);
  }
  const std::vector<int64_t>& totals = automaton.Occurrences();

  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    const std::vector<std::string>& words = s.KeywordWords[static_cast<size_t>(i)];
    const bool emptyWord = words.size() == 1 && words[0].empty();
    int16_t& matches = At(s.KeywordBodyMatches, i);
    const int64_t total = int64_t{matches} +
                          totals[static_cast<size_t>(automaton.End(static_cast<size_t>(i)))] +
                          emptyWord;
    if (total > INT16_MAX) {
      matches = INT16_MAX;
      RaiseOverflow();
    }
    matches = static_cast<int16_t>(total);
  }
}

}  // namespace

int16_t Tally_Current_TITLE_Keyword_Matches(AppState& s) {
  const std::vector<int64_t> found = Occurrences_In_Text(s, s.TitleText);
  int16_t n = 0;
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    int16_t& matches = At(s.KeywordTitleMatches, i);
    matches = ToInt16(found[static_cast<size_t>(i)]);
    if (matches > 0)
      n = ToInt16(int32_t{n} + 1);
  }
  return n;
}

void Tally_Current_Documents_Keyword_Matches(AppState& s) {
  if (s.KeywordsMatchScanType == 0)
    ScanText(s);
  else if (s.KeywordsMatchScanType == 1)
    ScanWords(s);
}

std::string Check_Percentage_String(const std::string& value) {
  std::string s = text::Trim(value);
  if (text::Val(s) == 0.0)
    s = "0.0000000000";
  const size_t minus = s.find('-');
  if (minus != std::string::npos) {
    const double e = text::Val(std::string_view(s).substr(minus + 1));
    if (e < 0)
      RaiseInvalidProcedureCall();
    // Only four characters are kept, so a few zeros stand for any longer run.
    const size_t zeros = e > 8 ? 8 : static_cast<size_t>(e);
    s = "." + std::string(zeros, '0') + text::ReplaceAll(s, ".", "");
  }
  if (!s.empty() && s[0] == '.')
    s = "0" + s;
  return s.substr(0, 4);
}

std::string Double_To_Text(double value) {
  if (value == 0.0)
    return " 0";
  if (!std::isfinite(value))
    RaiseOverflow();
  const std::string sign = value < 0 ? "-" : " ";
  // Fifteen significant digits in exponent form: "d.dddddddddddddde+XX".
  char buf[40];
  std::snprintf(buf, sizeof buf, "%.14e", std::fabs(value));
  const std::string formatted = buf;
  const size_t ePos = formatted.find('e');
  std::string digits = formatted.substr(0, 1) + formatted.substr(2, ePos - 2);
  const int exponent = std::stoi(formatted.substr(ePos + 1));
  while (digits.size() > 1 && digits.back() == '0')
    digits.pop_back();

  if (exponent < -4 || exponent >= 15) {
    std::string mantissa = digits.substr(0, 1);
    if (digits.size() > 1)
      mantissa += "." + digits.substr(1);
    char exp[16];
    std::snprintf(exp, sizeof exp, "E%c%02d", exponent < 0 ? '-' : '+', std::abs(exponent));
    return sign + mantissa + exp;
  }
  std::string out;
  if (exponent < 0) {
    out = "." + std::string(static_cast<size_t>(-exponent - 1), '0') + digits;
  } else {
    const size_t intDigits = static_cast<size_t>(exponent) + 1;
    if (digits.size() <= intDigits) {
      out = digits + std::string(intDigits - digits.size(), '0');
    } else {
      out = digits.substr(0, intDigits) + "." + digits.substr(intDigits);
    }
  }
  return sign + out;
}

std::string Keyword_Density_Text(const AppState& s, int16_t i) {
  if (s.DocumentWordCount <= 0)
    return Check_Percentage_String("");
  const double density = static_cast<double>(At(s.KeywordBodyMatches, i)) /
                         static_cast<double>(s.DocumentWordCount) * 100.0;
  return Check_Percentage_String(Double_To_Text(density));
}

}  // namespace zentrel::analysis

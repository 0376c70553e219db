#include "words/word_count.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_set>

#include "app/app_state.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "words/word_extraction.h"

namespace zentrel::words {

namespace {

// The filter test: " w " searched in the filter string, where w never holds a space. A filter
// entry that holds spaces ("cats and dogs") must never filter a single counted word, so the
// test is made against whole entries; a word with a space (or an empty one) falls back to the
// plain search of the filter string.
class FilterLookup {
 public:
  explicit FilterLookup(const AppState& s) : text_(s.FilterWordsText) {
    const int32_t count =
        std::min<int32_t>(s.FilterCount, static_cast<int32_t>(s.FilterWords.size()));
    for (int32_t i = 0; i < count; ++i)
      entries_.insert(s.FilterWords[static_cast<size_t>(i)]);
  }

  bool Contains(const std::string& lowered) const {
    if (lowered.empty() || lowered.find(' ') != std::string::npos)
      return text_.find(" " + lowered + " ") != std::string::npos;
    return entries_.count(lowered) != 0;
  }

 private:
  const std::string& text_;
  std::unordered_set<std::string> entries_;
};

bool HasNonLetter(const AppState& s, const std::string& w) {
  for (char c : w) {
    if (s.LetterTable[static_cast<unsigned char>(c)] == 0)
      return true;
  }
  return false;
}

// Both word-list arrays grow together; the capacity is their highest index.
void GrowDocumentWords(AppState& s) {
  s.DocumentWordsCapacity = ToInt32(int64_t{s.DocumentWordsCapacity} + kDocumentWordsStep);
  const size_t size = static_cast<size_t>(s.DocumentWordsCapacity) + 1;
  s.DocumentWords.resize(size);
  s.DocumentWordsUpper.resize(size);
}

void ResizeDictionary(AppState& s) {
  const size_t size = static_cast<size_t>(s.UniqueWordsCapacity) + 1;
  s.UniqueWords.resize(size);
  s.UniqueWordCounts.resize(size, 0);
  s.UniqueWordValues.resize(size, 0);
}

void AddToDictionary(AppState& s, std::string w, const FilterLookup& lookup) {
  if (s.WordMatchForceCase == 1)
    w = text::LCase(w);
  if (s.WordMatchIgnoreAlphaNumeric == 1 && HasNonLetter(s, w))
    return;
  if (lookup.Contains(text::LCase(w)))
    return;

  auto hit = s.UniqueWordIndex.find(w);
  if (s.UniqueWordCount > 0 && hit != s.UniqueWordIndex.end()) {
    int16_t& count = At(s.UniqueWordCounts, hit->second);
    count = ToInt16(int32_t{count} + 1);
    return;
  }
  const int32_t entries = s.UniqueWordCount;
  if (entries > s.UniqueWordsCapacity) {
    s.UniqueWordsCapacity += kUniqueWordsStep;
    ResizeDictionary(s);
  }
  At(s.UniqueWords, entries) = w;
  At(s.UniqueWordCounts, entries) = 1;
  s.UniqueWordCount = ToInt16(int32_t{entries} + 1);
  s.UniqueWordIndex[w] = entries;
}

}  // namespace

void Init_Document_Word_Dictionary(AppState& s) {
  s.UniqueWordsCapacity = kUniqueWordsStart;
  s.UniqueWords.assign(static_cast<size_t>(kUniqueWordsStart) + 1, std::string());
  s.UniqueWordCounts.assign(static_cast<size_t>(kUniqueWordsStart) + 1, 0);
  s.UniqueWordValues.assign(static_cast<size_t>(kUniqueWordsStart) + 1, 0);
  s.UniqueWordCount = 0;
  s.UniqueWordIndex.clear();
}

void Init_Document_Word_List(AppState& s) {
  s.DocumentWordsCapacity = kDocumentWordsStart;
  s.DocumentWords.assign(static_cast<size_t>(kDocumentWordsStart) + 1, std::string());
  s.DocumentWordsUpper.assign(static_cast<size_t>(kDocumentWordsStart) + 1, std::string());
  s.DocumentWordCount = 0;
}

void Word_Count_Stripped_Text(AppState& s) {
  Init_Document_Word_Dictionary(s);
  const FilterLookup lookup(s);
  const int64_t length = static_cast<int64_t>(s.StrippedText.size());
  uint32_t words = 0;  // the window repaints every few thousand words of a long page
  for (int64_t i = 1; i <= length; ++i) {
    if (s.StrippedText[static_cast<size_t>(i - 1)] == ' ')
      continue;
    if ((++words & 4095) == 0)
      s.platform->DoEvents();
    std::string word = Get_Word_String(s, static_cast<int32_t>(i));
    const int64_t advance = static_cast<int64_t>(word.size());
    if (word.size() > 1) {
      Add_Word_To_Unique_Word_Table(s, word);
      AddToDictionary(s, std::move(word), lookup);
    }
    i += advance;
  }
  Sort_Word_Strings(s);
}

void Add_Word_To_Unique_Word_Table(AppState& s, std::string word) {
  if (s.WordMatchForceCase == 1)
    word = text::LCase(word);
  if (s.WordMatchIgnoreAlphaNumeric == 1 && HasNonLetter(s, word))
    return;
  if (s.DocumentWordCount == s.DocumentWordsCapacity ||
      static_cast<size_t>(s.DocumentWordCount) >= s.DocumentWords.size())
    GrowDocumentWords(s);
  At(s.DocumentWordsUpper, s.DocumentWordCount) = text::UCase(word);
  At(s.DocumentWords, s.DocumentWordCount) = std::move(word);
  s.DocumentWordCount = ToInt32(int64_t{s.DocumentWordCount} + 1);
}

void Add_Word_To_Dictionary(AppState& s, std::string word) {
  AddToDictionary(s, std::move(word), FilterLookup(s));
}

void Sort_Word_Strings(AppState& s) {
  // The slot just after the last word takes part as an empty word seen 0 times. When the
  // dictionary is exactly full that slot lies past the arrays; it is empty all the same.
  const int32_t entries = s.UniqueWordCount;
  if (static_cast<size_t>(entries) >= s.UniqueWords.size()) {
    s.UniqueWordsCapacity = entries;
    ResizeDictionary(s);
  }
  std::array<int32_t, kWordSortBuckets> bucket{};
  int32_t max = 0;
  for (int32_t i = 0; i <= entries; ++i) {
    const int16_t occurrences = At(s.UniqueWordCounts, i);
    ++At(bucket, occurrences);
    if (occurrences > max)
      max = occurrences;
  }
  int32_t total = 0;
  for (int32_t v = 0; v <= max; ++v) {
    const int32_t count = bucket[static_cast<size_t>(v)];
    bucket[static_cast<size_t>(v)] = total;
    total += count;
  }
  const size_t n = static_cast<size_t>(entries) + 1;
  std::vector<std::string> sortWords(n);
  std::vector<int16_t> sortCounts(n, 0);
  std::vector<int32_t> sortValues(n, 0);
  for (int32_t i = 0; i <= entries; ++i) {
    const size_t from = static_cast<size_t>(i);
    const size_t p = static_cast<size_t>(bucket[static_cast<size_t>(s.UniqueWordCounts[from])]++);
    sortWords[p] = std::move(s.UniqueWords[from]);
    sortCounts[p] = s.UniqueWordCounts[from];
    sortValues[p] = s.UniqueWordValues[from];
  }
  // The copy back runs in reverse: most occurrences first, and among equals the word first
  // seen later in the page comes first.
  size_t k = 0;
  for (int64_t j = int64_t{bucket[static_cast<size_t>(max)]} - 1; j >= 0; --j, ++k) {
    const size_t from = static_cast<size_t>(j);
    s.UniqueWords[k] = std::move(sortWords[from]);
    s.UniqueWordCounts[k] = sortCounts[from];
    s.UniqueWordValues[k] = sortValues[from];
  }
  s.UniqueWordIndex.clear();
  for (int32_t i = 0; i < entries; ++i)
    s.UniqueWordIndex[s.UniqueWords[static_cast<size_t>(i)]] = i;
}

}  // namespace zentrel::words

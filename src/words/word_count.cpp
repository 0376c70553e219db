#include "words/word_count.h"

#include <algorithm>
#include <array>
#include <bit>
#include <climits>
#include <cstring>
#include <string_view>
#include <unordered_set>

#include "base/run_time_error.h"
#include "base/text.h"
#include "state/app_state.h"
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

bool HasNonLetter(const AppState& s, std::string_view w) {
  for (char c : w) {
    if (s.LetterTable[static_cast<unsigned char>(c)] == 0)
      return true;
  }
  return false;
}

// The capacity is the list's highest index.
void GrowDocumentWords(AppState& s) {
  s.DocumentWordsCapacity = ToInt32(int64_t{s.DocumentWordsCapacity} + kDocumentWordsStep);
  s.DocumentWords.Resize(static_cast<size_t>(s.DocumentWordsCapacity) + 1);
}

void ResizeDictionary(AppState& s) {
  const size_t size = static_cast<size_t>(s.UniqueWordsCapacity) + 1;
  s.UniqueWords.resize(size);
  s.UniqueWordCounts.resize(size, 0);
}

// Makes room for the word at index count; the list is appended to, and a count set back or
// forth by hand moves the list's end there first.
size_t NextWordSlot(AppState& s) {
  if (s.DocumentWordCount == s.DocumentWordsCapacity ||
      static_cast<size_t>(s.DocumentWordCount) >= s.DocumentWords.size())
    GrowDocumentWords(s);
  const auto at = static_cast<size_t>(s.DocumentWordCount);
  CheckIndex(s.DocumentWordCount, 0, static_cast<int64_t>(s.DocumentWords.size()) - 1);
  if (s.DocumentWords.Stored() != at) {
    s.DocumentWords.Truncate(at);
    while (s.DocumentWords.Stored() < at)
      s.DocumentWords.Append({});
  }
  return at;
}

// Stores a word of the list's spelling at index count, growing the list when it is full.
void AppendToWordListGrowing(AppState& s, uint32_t spelling) {
  NextWordSlot(s);
  s.DocumentWords.AppendSpelling(spelling);
  s.DocumentWordCount = ToInt32(int64_t{s.DocumentWordCount} + 1);
}

// The same, stored at once below the capacity with the list's end at the count: half a
// million words pass here.
inline void AppendToWordList(AppState& s, uint32_t spelling) {
  const int32_t count = s.DocumentWordCount;
  if (count >= 0 && count < s.DocumentWordsCapacity &&
      static_cast<size_t>(count) == s.DocumentWords.Stored() &&
      static_cast<size_t>(count) < s.DocumentWords.size()) {
    s.DocumentWords.AppendSpelling(spelling);
    s.DocumentWordCount = count + 1;
  } else {
    AppendToWordListGrowing(s, spelling);
  }
}

// Stores the word (lower-cased first when `lower`) at index count.
void AppendToWordList(AppState& s, std::string_view word, bool lower) {
  NextWordSlot(s);
  s.DocumentWords.Append(word, lower ? state::WordList::Fold::Lower : state::WordList::Fold::None);
  s.DocumentWordCount = ToInt32(int64_t{s.DocumentWordCount} + 1);
}

// Stores w as a new dictionary entry, seen once; returns its index.
int32_t NewDictionaryEntry(AppState& s, const std::string& w) {
  const int32_t entries = s.UniqueWordCount;
  if (entries > s.UniqueWordsCapacity) {
    s.UniqueWordsCapacity += kUniqueWordsStep;
    ResizeDictionary(s);
  }
  At(s.UniqueWords, entries) = w;
  At(s.UniqueWordCounts, entries) = 1;
  s.UniqueWordCount = ToInt16(int32_t{entries} + 1);
  return entries;
}

// Counts w (after the case rule, the letter test and the filter test) in the dictionary;
// returns its index. The word index is either exact or behind (entries added without it, or
// cleared by the sort); a stale one is rebuilt first.
int32_t CountInDictionary(AppState& s, const std::string& w) {
  const auto entries = static_cast<size_t>(std::max<int16_t>(s.UniqueWordCount, 0));
  if (s.UniqueWordIndex.size() != entries) {
    s.UniqueWordIndex.clear();
    for (size_t i = 0; i < entries && i < s.UniqueWords.size(); ++i)
      s.UniqueWordIndex.emplace(s.UniqueWords[i], static_cast<int32_t>(i));
  }
  auto hit = s.UniqueWordIndex.find(w);
  if (s.UniqueWordCount > 0 && hit != s.UniqueWordIndex.end()) {
    int16_t& count = At(s.UniqueWordCounts, hit->second);
    count = ToInt16(int32_t{count} + 1);
    return hit->second;
  }
  const int32_t index = NewDictionaryEntry(s, w);
  s.UniqueWordIndex[w] = index;
  return index;
}

void AddToDictionary(AppState& s, std::string w, const FilterLookup& lookup) {
  if (s.WordMatchForceCase == 1)
    w = text::LCase(w);
  if (s.WordMatchIgnoreAlphaNumeric == 1 && HasNonLetter(s, w))
    return;
  if (lookup.Contains(text::LCase(w)))
    return;
  CountInDictionary(s, w);
}

// What the count does with each occurrence of one spelling, worked out at its first
// occurrence: a page repeats its words, so every later one costs a single lookup.
constexpr int32_t kSkippedWord = -2;  // not a letter word: neither listed nor counted
constexpr int32_t kFilterWord = -1;   // listed, not counted

// Open addressing over the spellings seen so far, sized for the cache: a page of half a
// million words repeats some twenty thousand spellings in no order, so each lookup is a
// random access, and small tables keep those in the cache. The slots hold entry numbers; an
// entry holds its spelling's first 16 bytes (all of most words), its place in the stripped
// text (which does not change during the count) and the outcome.
class SpellingTable {
 public:
  struct Entry {
    uint64_t head0 = 0, head1 = 0;  // the first 16 bytes, zero-padded
    uint32_t offset = 0;            // where the spelling first stood in the text
    uint32_t size = 0;
    int32_t outcome = 0;
    uint32_t spelling = 0;  // the word list's spelling, for a listed word
  };

  explicit SpellingTable(std::string_view text) : text_(text), slots_(kStartSlots, 0) {
    entries_.reserve(kStartSlots / 2);
  }

  // The entry of w, a view into the text (valid until the next call); a new one has `fresh`.
  Entry& Find(std::string_view w, bool& fresh) {
    if ((entries_.size() + 1) * 2 > slots_.size())
      Grow();
    uint64_t head0, head1;
    const uint64_t hash = Hash(w, head0, head1);
    const size_t mask = slots_.size() - 1;
    for (size_t i = static_cast<size_t>(hash) & mask;; i = (i + 1) & mask) {
      const uint32_t slot = slots_[i];
      if (slot == 0) {
        const auto offset = static_cast<uint32_t>(w.data() - text_.data());
        entries_.push_back({head0, head1, offset, static_cast<uint32_t>(w.size()), 0, 0});
        slots_[i] = static_cast<uint32_t>(entries_.size());
        fresh = true;
        return entries_.back();
      }
      Entry& e = entries_[slot - 1];
      if (e.head0 == head0 && e.head1 == head1 && e.size == w.size() &&
          (w.size() <= kHead ||
           std::memcmp(text_.data() + e.offset + kHead, w.data() + kHead, w.size() - kHead) == 0)) {
        fresh = false;
        return e;
      }
    }
  }

 private:
  static constexpr size_t kStartSlots = 4096;
  static constexpr size_t kHead = 16;

  // The word's first 16 bytes, zero-padded: read in two loads where the text goes on for
  // 16 bytes, not byte by byte.
  void Head(std::string_view w, uint64_t& head0, uint64_t& head1) const {
    const size_t n = w.size() < kHead ? w.size() : kHead;
    if (std::endian::native == std::endian::little &&
        static_cast<size_t>(text_.data() + text_.size() - w.data()) >= kHead) {
      std::memcpy(&head0, w.data(), 8);
      std::memcpy(&head1, w.data() + 8, 8);
      head0 &= n >= 8 ? ~uint64_t{0} : (uint64_t{1} << (8 * n)) - 1;
      head1 &= n >= kHead ? ~uint64_t{0} : n <= 8 ? 0 : (uint64_t{1} << (8 * (n - 8))) - 1;
      return;
    }
    char head[kHead] = {};
    for (size_t i = 0; i < n; ++i)
      head[i] = w[i];
    std::memcpy(&head0, head, 8);
    std::memcpy(&head1, head + 8, 8);
  }

  uint64_t Hash(std::string_view w, uint64_t& head0, uint64_t& head1) const {
    Head(w, head0, head1);
    uint64_t hash = (head0 * 0xFF51AFD7ED558CCDULL) ^ (head1 * 0xC4CEB9FE1A85EC53ULL) ^ w.size();
    for (size_t i = kHead; i < w.size(); ++i)
      hash = (hash ^ static_cast<unsigned char>(w[i])) * 0x100000001B3ULL;
    hash ^= hash >> 29;
    hash *= 0x9E3779B97F4A7C15ULL;
    return hash ^ (hash >> 32);
  }

  void Grow() {
    slots_.assign(slots_.size() * 2, 0);
    const size_t mask = slots_.size() - 1;
    for (size_t k = 0; k < entries_.size(); ++k) {
      uint64_t head0, head1;
      const Entry& e = entries_[k];
      size_t i = static_cast<size_t>(Hash(text_.substr(e.offset, e.size), head0, head1)) & mask;
      while (slots_[i] != 0)
        i = (i + 1) & mask;
      slots_[i] = static_cast<uint32_t>(k + 1);
    }
  }

  std::string_view text_;
  std::vector<uint32_t> slots_;  // 0: free; otherwise an entry's number plus one
  std::vector<Entry> entries_;
};

}  // namespace

void Init_Document_Word_Dictionary(AppState& s) {
  s.UniqueWordsCapacity = kUniqueWordsStart;
  s.UniqueWords.assign(static_cast<size_t>(kUniqueWordsStart) + 1, std::string());
  s.UniqueWordCounts.assign(static_cast<size_t>(kUniqueWordsStart) + 1, 0);
  s.UniqueWordCount = 0;
  s.UniqueWordIndex.clear();
}

void Init_Document_Word_List(AppState& s) {
  s.DocumentWordsCapacity = kDocumentWordsStart;
  s.DocumentWords.Reset(static_cast<size_t>(kDocumentWordsStart) + 1);
  s.DocumentWordCount = 0;
}

void Word_Count_Stripped_Text(AppState& s) {
  Init_Document_Word_Dictionary(s);
  const FilterLookup lookup(s);
  const std::string& text = s.StrippedText;
  const size_t length = text.size();
  std::array<bool, 256> breaks{};
  for (size_t c = 0; c < breaks.size(); ++c)
    breaks[c] = s.Get_Word_String_Chr_Table[c] != 0;

  // A listed word takes at least three characters of the text (two letters and a break, or
  // the text's end), so this is all the room the list can need; room never written to costs
  // no memory.
  s.DocumentWords.ReserveMore(length / 3 + 1);

  SpellingTable spellings(text);
  const auto fold =
      s.WordMatchForceCase == 1 ? state::WordList::Fold::Lower : state::WordList::Fold::None;
  int32_t words = 0;  // the window repaints every few thousand words of a long page
  for (size_t i = 1; i <= length; ++i) {
    if (text[i - 1] == ' ')
      continue;
    if ((++words & 4095) == 0)
      s.platform->DoEvents();
    // The word at i (Get_Word_String): it stops at the text's length without looking at the
    // last character.
    size_t p = i;
    while (p != length && !breaks[static_cast<unsigned char>(text[p - 1])])
      ++p;
    const std::string_view word(text.data() + (i - 1), p - i);
    if (word.size() > 1) {
      bool fresh = false;
      SpellingTable::Entry& entry = spellings.Find(word, fresh);
      if (fresh) {
        const std::string folded =
            fold == state::WordList::Fold::Lower ? text::LCase(word) : std::string(word);
        if (s.WordMatchIgnoreAlphaNumeric == 1 && HasNonLetter(s, folded)) {
          entry.outcome = kSkippedWord;
        } else {
          entry.spelling = s.DocumentWords.AddSpelling(word, fold);
          AppendToWordList(s, entry.spelling);
          // Without case folding a new spelling is a new word: the dictionary started empty.
          if (lookup.Contains(text::LCase(folded)))
            entry.outcome = kFilterWord;
          else if (fold == state::WordList::Fold::Lower)
            entry.outcome = CountInDictionary(s, folded);
          else
            entry.outcome = NewDictionaryEntry(s, folded);
        }
      } else if (entry.outcome != kSkippedWord) {
        AppendToWordList(s, entry.spelling);
        if (entry.outcome >= 0) {
          int16_t& count = At(s.UniqueWordCounts, entry.outcome);
          count = ToInt16(int32_t{count} + 1);
        }
      }
    }
    i += word.size();
  }
  Sort_Word_Strings(s);
}

void Add_Word_To_Unique_Word_Table(AppState& s, std::string word) {
  if (s.WordMatchForceCase == 1)
    word = text::LCase(word);
  if (s.WordMatchIgnoreAlphaNumeric == 1 && HasNonLetter(s, word))
    return;
  AppendToWordList(s, word, false);
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
  for (int32_t i = 0; i <= entries; ++i) {
    const size_t from = static_cast<size_t>(i);
    const size_t p = static_cast<size_t>(bucket[static_cast<size_t>(s.UniqueWordCounts[from])]++);
    sortWords[p] = std::move(s.UniqueWords[from]);
    sortCounts[p] = s.UniqueWordCounts[from];
  }
  // The copy back runs in reverse: most occurrences first, and among equals the word first
  // seen later in the page comes first.
  size_t k = 0;
  for (int64_t j = int64_t{bucket[static_cast<size_t>(max)]} - 1; j >= 0; --j, ++k) {
    const size_t from = static_cast<size_t>(j);
    s.UniqueWords[k] = std::move(sortWords[from]);
    s.UniqueWordCounts[k] = sortCounts[from];
  }
  s.UniqueWordIndex.clear();  // rebuilt when a word is next counted
}

}  // namespace zentrel::words

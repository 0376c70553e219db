#pragma once
// Counting the page's words: the document word list in page order and the dictionary of
// distinct words with their counts (filter words left out), sorted by count.

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace zentrel {
struct AppState;
}

namespace zentrel::words {

inline constexpr int32_t kDocumentWordsStart = 5000;
inline constexpr int32_t kDocumentWordsStep = 500;
inline constexpr int32_t kUniqueWordsStart = 2000;
inline constexpr int32_t kUniqueWordsStep = 500;
inline constexpr int kWordSortBuckets = 1001;  // occurrences 0..1000

struct WordCountFields {
  std::vector<std::string> DocumentWords;  // indexes 0..DocumentWordsCapacity
  std::vector<std::string> DocumentWordsUpper;
  int32_t DocumentWordCount = 0;
  int32_t DocumentWordsCapacity = 0;

  std::vector<std::string> UniqueWords;  // indexes 0..UniqueWordsCapacity
  std::vector<int16_t> UniqueWordCounts;
  std::vector<int32_t> UniqueWordValues;
  int16_t UniqueWordCount = 0;
  int32_t UniqueWordsCapacity = 0;
  std::unordered_map<std::string, int32_t> UniqueWordIndex;  // word -> index, for linear time
};

void Init_Document_Word_Dictionary(AppState& s);
// Resets the document word list for a new scan (capacity 5000, count 0).
void Init_Document_Word_List(AppState& s);
void Word_Count_Stripped_Text(AppState& s);
void Add_Word_To_Unique_Word_Table(AppState& s, std::string word);
void Add_Word_To_Dictionary(AppState& s, std::string word);
void Sort_Word_Strings(AppState& s);

}  // namespace zentrel::words

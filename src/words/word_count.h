#pragma once
// Counting the page's words: the document word list in page order and the dictionary of
// distinct words with their counts (filter words left out), sorted by count.

#include <compare>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
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

void Init_Document_Word_Dictionary(AppState& s);
// Resets the document word list for a new scan (capacity 5000, count 0).
void Init_Document_Word_List(AppState& s);
void Word_Count_Stripped_Text(AppState& s);
void Add_Word_To_Unique_Word_Table(AppState& s, std::string word);
void Add_Word_To_Dictionary(AppState& s, std::string word);
void Sort_Word_Strings(AppState& s);

}  // namespace zentrel::words

#pragma once
// The fields of the word code (words/): the word-break table and the last comma split, the
// page's words with the counted dictionary of distinct words, and the filter dictionary.

#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "state/word_list.h"

namespace zentrel::state {

inline constexpr int kSplitListSize = 1001;

struct WordExtractionFields {
  std::array<int16_t, 257> Get_Word_String_Chr_Table{};  // 1: the code ends a word
  std::array<std::string, kSplitListSize> Split_String_List;
};

struct WordCountFields {
  WordList DocumentWords;  // indexes 0..DocumentWordsCapacity
  int32_t DocumentWordCount = 0;
  int32_t DocumentWordsCapacity = 0;

  std::vector<std::string> UniqueWords;  // indexes 0..UniqueWordsCapacity
  std::vector<int16_t> UniqueWordCounts;
  int16_t UniqueWordCount = 0;
  int32_t UniqueWordsCapacity = 0;
  std::unordered_map<std::string, int32_t> UniqueWordIndex;  // word -> index, for linear time
};

struct FilterDictionaryFields {
  std::vector<std::string> FilterWords;  // indexes 0..FilterCapacity
  int16_t FilterCount = 0;
  int16_t FilterCapacity = 0;
  std::string FilterWordsText;  // " w1 w2 ... wn  "
};

}  // namespace zentrel::state

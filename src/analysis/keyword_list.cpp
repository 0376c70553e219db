#include "analysis/keyword_list.h"

#include <vector>

#include "base/run_time_error.h"
#include "base/text.h"
#include "decode/meta_tag_table.h"
#include "state/app_state.h"
#include "words/word_extraction.h"

namespace zentrel::analysis {

namespace {

constexpr size_t kReportRoom = 1 << 16;  // for the report lines around the duplicates text

void ResizeKeywordArrays(AppState& s) {
  const size_t size = static_cast<size_t>(s.KeywordCapacity) + 1;
  s.KeywordList.resize(size);
  s.KeywordBodyMatches.resize(size, 0);
  s.KeywordTitleMatches.resize(size, 0);
}

}  // namespace

void Reset_Keyword_List(AppState& s) {
  s.KeywordCount = 0;
  s.KeywordCapacity = kKeywordListStart;
  s.KeywordList.clear();
  s.KeywordBodyMatches.clear();
  s.KeywordTitleMatches.clear();
  ResizeKeywordArrays(s);
  s.KeywordSplitCount = 0;
}

void Add_Word_To_KeyWord_buffer(AppState& s, const std::string& word) {
  const std::string trimmed = text::Trim(word);
  if (trimmed.empty() || trimmed == ",")
    return;
  if (s.KeywordCount == s.KeywordCapacity) {
    s.KeywordCapacity = ToInt16(int32_t{s.KeywordCapacity} + kKeywordListStep);
    ResizeKeywordArrays(s);
  }
  const int16_t i = s.KeywordCount;
  At(s.KeywordList, i) = trimmed;
  At(s.KeywordBodyMatches, i) = 0;
  s.KeywordCount = ToInt16(int32_t{s.KeywordCount} + 1);
}

void Add_Pages_MetaTag_keywords(AppState& s) {
  const std::string content = decode::Get_MetaTag_Value(s, "keywords");
  s.KeywordSplitCount = words::Split_String(s, content);
  // The split keeps a closing comma on the last part ("c," from "a, b, c,"); the page's
  // keywords are taken without it, so "a, b, c," gives the keywords a, b and c.
  for (int16_t k = 0; k < s.KeywordSplitCount; ++k) {
    std::string part = At(s.Split_String_List, k);
    if (k == s.KeywordSplitCount - 1 && part.size() > 1 && part.back() == ',')
      part.pop_back();
    Add_Word_To_KeyWord_buffer(s, part);
  }
}

void Add_Users_Hand_Selected_Keywords_to_Pages_keywords(AppState& s) {
  s.UsersKeywordsText = text::Trim(s.UsersKeywordsText);
  if (!s.UsersKeywordsText.empty() && s.UsersKeywordsText.back() == ',')
    s.UsersKeywordsText.pop_back();
  if (s.UsersKeywordsText.empty())
    return;
  const int16_t parts = words::Split_String(s, s.UsersKeywordsText);
  s.KeywordSplitCount = parts;
  if (parts == 0)
    return;
  for (int16_t k = 0; k < parts; ++k) {
    const std::string part = At(s.Split_String_List, k);
    // A typed keyword that is a filter word is left out; the page's own keywords never are.
    if (s.FilterWordsText.find(text::LCase(" " + part + " ")) == std::string::npos)
      Add_Word_To_KeyWord_buffer(s, part);
  }
}

int16_t Check_Keywords_For_Doubles(AppState& s) {
  s.KeywordDoublesText.clear();
  if (s.KeywordCount < 2)
    return 0;
  // Blanked copies stay in place and compare equal to each other, so a keyword listed three
  // times also reports one empty line; the text must keep that. Each pair adds keyword i
  // once, so the text is counted first and written in one block.
  std::vector<int32_t> pairs(static_cast<size_t>(s.KeywordCount), 0);
  size_t length = 0;
  for (int32_t i = 0; i <= s.KeywordCount - 2; ++i) {
    for (int32_t j = i + 1; j <= s.KeywordCount - 1; ++j) {
      if (At(s.KeywordList, j) != At(s.KeywordList, i))
        continue;
      ++pairs[static_cast<size_t>(i)];
      length += s.KeywordList[static_cast<size_t>(i)].size() + text::kCrLf.size();
      if (s.KeywordsRemoveDoubles == 1)
        s.KeywordList[static_cast<size_t>(j)].clear();
    }
  }
  // A keyword listed a thousand times names itself half a million times, nearly the whole
  // report: the report takes this text over instead of copying it, and the room it needs
  // for its other lines costs no memory until it is written.
  s.KeywordDoublesText.reserve(length + length / 4 + kReportRoom);
  for (size_t i = 0; i < pairs.size(); ++i) {
    for (int32_t n = 0; n < pairs[i]; ++n) {
      s.KeywordDoublesText += s.KeywordList[i];
      s.KeywordDoublesText += text::kCrLf;
    }
  }
  return length > 0 ? 1 : 0;
}

void Remove_Keyword_Doubles(AppState& s) {
  int16_t n = 0;
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    if (At(s.KeywordList, i).empty())
      continue;
    // Only these two move; title matches and words keep their old places.
    if (n != i) {
      s.KeywordList[static_cast<size_t>(n)] = s.KeywordList[static_cast<size_t>(i)];
      At(s.KeywordBodyMatches, n) = At(s.KeywordBodyMatches, i);
    }
    ++n;
  }
  s.KeywordCount = n;
}

void Remove_Keyword_With_Low_Match_Counts(AppState& s) {
  if (s.Form.KeyWords_MinKeyWordMatches_Option != 1)
    return;
  const std::string choice = text::Trim(s.Form.KeyWords_MinKeyWordMatches_DropDown.Text);
  std::string digits;
  for (size_t k = 0; k < 3 && k < choice.size(); ++k) {
    if (choice[k] < '0' || choice[k] > '9')
      break;
    digits += choice[k];
  }
  if (digits.empty())
    return;
  const int32_t minimum = std::stoi(digits);
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    if (At(s.KeywordBodyMatches, i) < minimum)
      At(s.KeywordList, i).clear();
  }
  Remove_Keyword_Doubles(s);
}

void Sort_Page_KeyWord_Strings(AppState& s) {
  if (s.KeywordsSortList != 1)
    return;
  const int32_t count = s.KeywordCount;
  const size_t size = static_cast<size_t>(count) + 2;
  std::vector<std::string> words(size);
  std::vector<int16_t> matches(size, 0);
  std::vector<int32_t> tally(kKeywordSortTally, 0);
  int32_t max = 0;
  for (int32_t i = 0; i < count; ++i) {
    const int16_t m = At(s.KeywordBodyMatches, i);
    if (m > max)
      max = m;
    ++At(tally, m);
  }
  int32_t total = 0;
  for (int32_t v = 0; v <= max; ++v) {
    const int32_t n = tally[static_cast<size_t>(v)];
    tally[static_cast<size_t>(v)] = total;
    total += n;
  }
  for (int32_t i = 0; i < count; ++i) {
    const size_t from = static_cast<size_t>(i);
    const size_t p = static_cast<size_t>(tally[static_cast<size_t>(s.KeywordBodyMatches[from])]++);
    words[p] = std::move(s.KeywordList[from]);
    matches[p] = s.KeywordBodyMatches[from];
  }
  // Reverse copy: most matches first, equal counts in the reverse of their former order.
  for (int32_t k = 0; k < count; ++k) {
    const size_t from = static_cast<size_t>(count - 1 - k);
    const size_t to = static_cast<size_t>(k);
    s.KeywordList[to] = std::move(words[from]);
    s.KeywordBodyMatches[to] = matches[from];
  }
}

}  // namespace zentrel::analysis

#include "words/filter_dictionary.h"

#include <algorithm>
#include <string_view>

#include "base/file_io.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "state/app_state.h"

namespace zentrel::words {

namespace {

void AllocateFilterWords(AppState& s) {
  s.FilterWords.assign(static_cast<size_t>(s.FilterCapacity) + 1, std::string());
}

}  // namespace

std::string Standard_Dictionary_Path(const AppState& s) {
  return s.ProgramFolder + "/dictionary/Zentrel_Standard.txt";
}

std::optional<std::string> Read_Filter_Dictionary(const std::string& path,
                                                  const std::string& textToAppendTo) {
  if (path.empty() || !file_io::FileExists(path))
    return std::nullopt;
  std::string content;
  try {
    content = file_io::ReadWholeFile(path);
  } catch (const file_io::FileError&) {
    return std::nullopt;  // a folder or an unreadable file loads nothing, like a missing one
  }
  std::string text = textToAppendTo;
  file_io::ReadListItems(content, [&text](std::string_view item) {
    text += item;
    text += text::kCrLf;
  });
  return text;
}

void Start_Filter_List(AppState& s) {
  s.FilterCapacity = kFilterWordsStart;
  AllocateFilterWords(s);
}

void Rebuild_Filter_List(AppState& s, std::string_view words) {
  std::string all = text::LCase(words);
  AllocateFilterWords(s);
  s.FilterCount = 0;
  all += text::kCrLf;
  all = text::ReplaceAll(all, text::kCrLf, ",");
  std::string_view rest = all;
  size_t comma;
  while ((comma = rest.find(',')) != std::string_view::npos) {
    Add_Word_Filter(s, text::Trim(rest.substr(0, comma)));
    rest.remove_prefix(comma + 1);
    s.platform->DoEvents();
  }
  Sort_Filter_Word_Dictionary(s);
  Remove_Doubles_Filter_Word_Dictionary(s);
}

void Add_Word_Filter(AppState& s, const std::string& word) {
  if (s.FilterCount >= s.FilterCapacity) {
    s.FilterCapacity = ToInt16(int32_t{s.FilterCapacity} + kFilterWordsStep);
    s.FilterWords.resize(static_cast<size_t>(s.FilterCapacity) + 1);
  }
  if (word.empty())
    return;
  At(s.FilterWords, s.FilterCount) = word;
  s.FilterCount = ToInt16(int32_t{s.FilterCount} + 1);
}

void Sort_Filter_Word_Dictionary(AppState& s) {
  // Ordinal order: the first character's code decides, then the rest of the word code by
  // code, which is what a sort by first letter followed by a sort within each letter gives.
  CheckIndex(s.FilterCount, 0, static_cast<int64_t>(s.FilterWords.size()));
  std::sort(s.FilterWords.begin(), s.FilterWords.begin() + s.FilterCount);
}

void Remove_Doubles_Filter_Word_Dictionary(AppState& s) {
  const int32_t count = s.FilterCount;
  if (count < 2) {
    s.FilterCount = 0;  // a single word is dropped as well
    return;
  }
  int32_t o = 0;
  int32_t i = 0;
  while (i <= count - 1) {
    const std::string word = At(s.FilterWords, i);
    int32_t j = i + 1;
    while (j < count && At(s.FilterWords, j) == word)
      ++j;
    if (!word.empty())
      At(s.FilterWords, o++) = word;
    i = j;
  }
  s.FilterCount = ToInt16(o);
}

std::string Filter_Words_Text(const AppState& s, std::string_view after) {
  std::string out;
  for (int32_t i = 0; i < s.FilterCount; ++i) {
    out += At(s.FilterWords, i);
    out += after;
  }
  return out;
}

void Build_Filter_Words_Text(AppState& s) {
  s.FilterWordsText = " " + Filter_Words_Text(s, " ") + " ";  // " " for the slot at the count
}

}  // namespace zentrel::words

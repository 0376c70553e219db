#pragma once
// The filter dictionary: common words that the word count leaves out. Its working copy is the
// "Prefs" text box; the list in memory is rebuilt from it, sorted and without repeats.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zentrel {
struct AppState;
}

namespace zentrel::words {

inline constexpr int16_t kFilterWordsStart = 1000;
inline constexpr int16_t kFilterWordsStep = 500;

// "dictionary/Zentrel_Standard.txt" under the program folder (kept as written: the file system
// is case-sensitive).
std::string Standard_Dictionary_Path(const AppState& s);
// The text of a dictionary file, one item a line (CR LF) after `textToAppendTo`; nothing when
// the path is empty or names no file that can be read.
std::optional<std::string> Read_Filter_Dictionary(const std::string& path,
                                                  const std::string& textToAppendTo);
// A fresh, empty list of the starting capacity.
void Start_Filter_List(AppState& s);
// The list rebuilt from a text of words (the "Prefs" box): lower-cased, cut at line ends and
// commas, trimmed, sorted, and without repeats.
void Rebuild_Filter_List(AppState& s, std::string_view words);
void Add_Word_Filter(AppState& s, const std::string& word);
void Sort_Filter_Word_Dictionary(AppState& s);
void Remove_Doubles_Filter_Word_Dictionary(AppState& s);
// The words of the list in order, each followed by `after`.
std::string Filter_Words_Text(const AppState& s, std::string_view after);
// The filter string the word count searches: " ", then each word and a space, then one more
// space for the empty slot at the count (an empty list gives two spaces).
void Build_Filter_Words_Text(AppState& s);

}  // namespace zentrel::words

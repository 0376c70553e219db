#pragma once
// The filter dictionary: common words that the word count leaves out. Its working copy is the
// "Prefs" text box; the list in memory is rebuilt from it, sorted and without repeats.

#include <array>
#include <cstdint>
#include <string>
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
void Load_Word_Filter_Dictionary(AppState& s, const std::string& path,
                                 const std::string& textToAppendTo);
void Save_Word_Filter_Dictionary(AppState& s, const std::string& path);
void Resort_And_Removed_Doubles_From_Filter_Dictionary(AppState& s);
void Add_Word_Filter(AppState& s, const std::string& word);
void Sort_Filter_Word_Dictionary(AppState& s);
void Remove_Doubles_Filter_Word_Dictionary(AppState& s);
void Build_Filter_Word_Dictionary(AppState& s);
void Load_Default_Word_Filters(AppState& s, const std::string& path);
void SetWordFilter_TextBoxes(AppState& s);
// The filter string the word count searches: " ", then each word and a space, then one more
// space for the empty slot at the count (an empty list gives two spaces).
void Build_Filter_Words_Text(AppState& s);

}  // namespace zentrel::words

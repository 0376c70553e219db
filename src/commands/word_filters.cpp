#include "commands/word_filters.h"

#include "base/file_io.h"
#include "base/text.h"
#include "state/app_state.h"
#include "words/filter_dictionary.h"

namespace zentrel::commands {

void Load_Word_Filter_Dictionary(AppState& s, const std::string& path,
                                 const std::string& textToAppendTo) {
  if (std::optional<std::string> words = words::Read_Filter_Dictionary(path, textToAppendTo))
    s.Form.WordFiltersPage_WordDictionary = std::move(*words);
}

void Save_Word_Filter_Dictionary(AppState& s, const std::string& path) {
  if (path.empty())
    return;
  file_io::WriteFileAtomic(path, s.Form.WordFiltersPage_WordDictionary + std::string(text::kCrLf),
                           *s.files);
}

// The list is rebuilt from the box and shown back in it, sorted and without repeats.
void Resort_And_Removed_Doubles_From_Filter_Dictionary(AppState& s) {
  words::Rebuild_Filter_List(s, s.Form.WordFiltersPage_WordDictionary);
  SetWordFilter_TextBoxes(s);
}

void Build_Filter_Word_Dictionary(AppState& s) {
  words::Start_Filter_List(s);
  Load_Word_Filter_Dictionary(s, words::Standard_Dictionary_Path(s), "");
  Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
}

void Load_Default_Word_Filters(AppState& s, const std::string& path) {
  s.FilterDictionaryFile = path;
  s.Form.WordFiltersPage_SelectDefaultWordDictionary_Text = path;
  Load_Word_Filter_Dictionary(s, path, "");
  Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
}

void SetWordFilter_TextBoxes(AppState& s) {
  s.Form.WordFiltersPage_WordDictionary = words::Filter_Words_Text(s, text::kCrLf);
}

}  // namespace zentrel::commands

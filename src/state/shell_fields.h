#pragma once
// The shared fields of the application state besides the user's settings (settings.h):
// paths, the additional keywords, the search state, the letter table and the recent pages.

#include <array>
#include <cstdint>
#include <string>

#include "state/form_model.h"

namespace zentrel::state {

struct ShellFields {
  std::string ProgramFolder;
  // A preferences file read instead of the program folder's (the command line's --prefs).
  std::string PreferencesFileOverride;
  std::string CurrentFileName;
  std::string UsersKeywordsText;
  std::string EditorFindText;
  std::string EditorFindPreviousText;
  int32_t EditorFindPosition = 1;
  std::array<int16_t, 256> LetterTable{};

  // Recent pages, newest at 0; index 5 only receives the entry pushed out of index 4.
  std::array<std::string, 6> RecentFiles;
  int16_t RecentFileCount = 0;

  // The page source and the META tag fields as the last load, save or "&New" left them; edits
  // are what differs.
  std::string SavedPageText;
  std::array<std::string, kMetaTagFieldCount> SavedMetaTagFields;
};

}  // namespace zentrel::state

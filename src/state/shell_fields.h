#pragma once
// The shared fields of the application state: paths, the user's settings (16-bit flags
// holding 0 or 1, like their check boxes), the search state and the recent-file list.

#include <array>
#include <cstdint>
#include <string>

namespace zentrel::state {

struct ShellFields {
  std::string ProgramFolder;
  // A preferences file read instead of the program folder's (the command line's --prefs).
  std::string PreferencesFileOverride;
  std::string CurrentFileName;
  std::string DefaultFileExtension = ".htm";
  int32_t DefaultFileTypeIndex = 2;
  std::string FilterDictionaryFile;
  std::string UsersKeywordsText;
  std::string EditorFindText;
  std::string EditorFindPreviousText;
  int32_t EditorFindPosition = 1;
  std::string WordDelimiterChars;
  std::array<int16_t, 256> LetterTable{};

  int16_t WordMatchForceCase = 0;
  int16_t WordMatchIgnoreAlphaNumeric = 0;
  int16_t KeywordsDisablePartMatches = 0;
  int16_t KeywordsSortList = 0;
  int16_t KeywordsRemoveDoubles = 0;
  int16_t KeywordsForceSameCase = 0;
  int16_t KeywordsUseMinMatches = 0;
  int16_t KeywordsMinMatches = 0;
  int16_t KeywordsMatchScanType = 0;
  int16_t DecodeIncludeBodyText = 0;
  int16_t DecodeIncludeAltText = 0;
  int16_t DecodeIncludeTitleWithBody = 0;
  int16_t DecodeIncludeMetaDescriptionWithBody = 0;
  int16_t EncodeSwapContentAndNameOrder = 0;
  int16_t EncodeComaSpaceBetweenKeywords = 0;
  int16_t ReportExportWordCount = 0;
  int16_t ViewBodyShowRaw = 0;

  // Recent pages, newest at 0; index 5 only receives the entry pushed out of index 4.
  std::array<std::string, 6> RecentFiles;
  int16_t RecentFileCount = 0;
};

}  // namespace zentrel::state

#pragma once
// The user's settings and the one table that describes them: for each setting, the control
// that shows it, where the Form and the state keep it, its default, and its entry in the
// preferences file. The defaults, SET_CHeck_boxes, the check boxes' clicks and the
// preferences file all work from the table, so a new setting costs a row here (with its two
// fields) and a widget in the view.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "state/form_model.h"

namespace zentrel::state {

// Flags are 16-bit values holding 0 or 1, like their check boxes.
struct SettingsFields {
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
  int16_t SaveShowChanges = 0;  // show what a save changes in the head, and ask, before writing
  int16_t SaveKeepBackup = 0;   // keep the file a save replaces as FILE.bak
  std::string WordDelimiterChars;
  std::string DefaultFileExtension = ".htm";
  int32_t DefaultFileTypeIndex = 2;
  std::string FilterDictionaryFile;
};

inline constexpr const char* kDefaultWordDelimiters = "\"#=<>^()[]{}/.,;:+-_*&!?@%";

// How a setting's value stands in the preferences file.
enum class Stored {
  No,           // not kept
  Number,       // signed number form, read back rounded into its 16- or 32-bit field
  Bit0,         // signed number form, of which only bit 0 is read back
  Text,         // as it stands
  ComaText,     // with every "," written as "&COMA&"
  OptionalText  // as it stands, its line written only when it is not empty
};

struct Setting {
  std::string_view Control = {};                  // the control that shows it, "" for none
  int16_t FormModel::*CheckBox = nullptr;         // shown in a check box,
  DropDown FormModel::*MatchesList = nullptr;     // in the minimum-matches list,
  std::string FormModel::*TextBox = nullptr;      // or in a text box that writes it back
  int16_t SettingsFields::*Flag = nullptr;        // kept in a 16-bit field,
  int32_t SettingsFields::*Number = nullptr;      // a 32-bit one,
  std::string SettingsFields::*Text = nullptr;    // or a text
  std::optional<int32_t> Default = std::nullopt;  // for a number; none: the defaults leave it
  const char* DefaultText = nullptr;              // for a text
  std::string_view Key = {};                      // in the preferences file
  Stored Format = Stored::No;
  int FileOrder = 0;  // the place of its line among the settings' lines of that file
};

// Every setting, in the order of their boxes (the order SET_CHeck_boxes fills them in).
std::span<const Setting> Settings();
// The setting a check box shows.
const Setting& Setting_Of(int16_t FormModel::*checkBox);
// The setting a text box shows.
const Setting& Setting_Of(std::string FormModel::*textBox);
// Every setting that has a default takes it.
void Set_Setting_Defaults(SettingsFields& s);

}  // namespace zentrel::state

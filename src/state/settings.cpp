#include "state/settings.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace zentrel::state {

namespace {

using F = FormModel;
using S = SettingsFields;

// In the order of the boxes; the preferences file has its own order (FileOrder).
constexpr Setting kSettings[] = {
    // No default: it starts at 0 and only the preferences file sets it.
    {.Control = "WordMatch_ForceCase",
     .CheckBox = &F::WordMatch_ForceCase,
     .Flag = &S::WordMatchForceCase,
     .Key = "WordMatch_ForceSameCase:",
     .Format = Stored::Number,
     .FileOrder = 7},
    {.Control = "WordMatch_IgnoreAlphaNumericWords",
     .CheckBox = &F::WordMatch_IgnoreAlphaNumericWords,
     .Flag = &S::WordMatchIgnoreAlphaNumeric,
     .Default = 1,
     .Key = "WordMatch_ForceAlphaNumeric:",
     .Format = Stored::Number,
     .FileOrder = 8},
    {.Control = "KeyWordMatch_Disable_Part_Keyword_Matches",
     .CheckBox = &F::KeyWordMatch_Disable_Part_Keyword_Matches,
     .Flag = &S::KeywordsDisablePartMatches,
     .Default = 1},
    {.Control = "KeyWords_SortList",
     .CheckBox = &F::KeyWords_SortList,
     .Flag = &S::KeywordsSortList,
     .Default = 1,
     .Key = "Keywords_Sorted:",
     .Format = Stored::Number,
     .FileOrder = 1},
    {.Control = "KeyWords_RemoveDoubleKeyWordListings",
     .CheckBox = &F::KeyWords_RemoveDoubleKeyWordListings,
     .Flag = &S::KeywordsRemoveDoubles,
     .Default = 1,
     .Key = "Keywords_RemoveDuplicates:",
     .Format = Stored::Number,
     .FileOrder = 2},
    {.Control = "KeyWords_ForceSameCaseMatching",
     .CheckBox = &F::KeyWords_ForceSameCaseMatching,
     .Flag = &S::KeywordsForceSameCase,
     .Default = 1,
     .Key = "Keywords_ForceSameCaseMatching:",
     .Format = Stored::Number,
     .FileOrder = 3},
    {.Control = "KeyWords_MinKeyWordMatches_Option",
     .CheckBox = &F::KeyWords_MinKeyWordMatches_Option,
     .Flag = &S::KeywordsUseMinMatches,
     .Default = 0,
     .Key = "Keywords_MinMatches:",
     .Format = Stored::Number,
     .FileOrder = 4},
    {.Control = "KeyWords_MinKeyWordMatches_DropDown",
     .MatchesList = &F::KeyWords_MinKeyWordMatches_DropDown,
     .Flag = &S::KeywordsMinMatches,
     .Default = 1,
     .Key = "Keywords_NumberOfMinMatches:",
     .Format = Stored::Number,
     .FileOrder = 5},
    {.Control = "KeyWords_MatchScanType_CheckBOx",
     .CheckBox = &F::KeyWords_MatchScanType_CheckBOx,
     .Flag = &S::KeywordsMatchScanType,
     .Default = 1,
     .Key = "Keywords_MatchingType:",
     .Format = Stored::Number,
     .FileOrder = 6},
    {.Control = "HtmlDecodePref_IncludeBODYTEXT_CheckBox",
     .CheckBox = &F::HtmlDecodePref_IncludeBODYTEXT_CheckBox,
     .Flag = &S::DecodeIncludeBodyText,
     .Default = 1},
    {.Control = "HtmlDecodePref_IncludeALTTEXT_CheckBox",
     .CheckBox = &F::HtmlDecodePref_IncludeALTTEXT_CheckBox,
     .Flag = &S::DecodeIncludeAltText,
     .Default = 1},
    {.Control = "HtmlDecodePref_IncludeTitleWithBody_CheckBox",
     .CheckBox = &F::HtmlDecodePref_IncludeTitleWithBody_CheckBox,
     .Flag = &S::DecodeIncludeTitleWithBody,
     .Default = 1},
    {.Control = "HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox",
     .CheckBox = &F::HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox,
     .Flag = &S::DecodeIncludeMetaDescriptionWithBody,
     .Default = 0,
     .Key = "IncludeMetaDizzy:",
     .Format = Stored::Bit0,
     .FileOrder = 14},
    {.Control = "MetaTagEncodePref_SwapContentAndNameOrder_CheckBox",
     .CheckBox = &F::MetaTagEncodePref_SwapContentAndNameOrder_CheckBox,
     .Flag = &S::EncodeSwapContentAndNameOrder,
     .Default = 0,
     .Key = "SwapContentNameOrder:",
     .Format = Stored::Bit0,
     .FileOrder = 12},
    {.Control = "MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox",
     .CheckBox = &F::MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox,
     .Flag = &S::EncodeComaSpaceBetweenKeywords,
     .Default = 1,
     .Key = "KeywordsComaSpace:",
     .Format = Stored::Bit0,
     .FileOrder = 13},
    {.Control = "PageReport_Export_WordCount_CheckBox",
     .CheckBox = &F::PageReport_Export_WordCount_CheckBox,
     .Flag = &S::ReportExportWordCount,
     .Default = 0},
    {.Control = "ViewBody_ShowRAWBODY_CHeckBox",
     .CheckBox = &F::ViewBody_ShowRAWBODY_CHeckBox,
     .Flag = &S::ViewBodyShowRaw,
     .Default = 0},
    {.Control = "SavePref_ShowChanges_CheckBox",
     .CheckBox = &F::SavePref_ShowChanges_CheckBox,
     .Flag = &S::SaveShowChanges,
     .Default = 1,
     .Key = "ShowChangesBeforeSaving:",
     .Format = Stored::Bit0,
     .FileOrder = 16},
    {.Control = "SavePref_KeepBackup_CheckBox",
     .CheckBox = &F::SavePref_KeepBackup_CheckBox,
     .Flag = &S::SaveKeepBackup,
     .Default = 0,
     .Key = "KeepBackupOnSave:",
     .Format = Stored::Bit0,
     .FileOrder = 17},
    {.Control = "HtmlDecodePref_WordDecodeStopCHR_TextBox",
     .TextBox = &F::HtmlDecodePref_WordDecodeStopCHR_TextBox,
     .Text = &S::WordDelimiterChars,
     .DefaultText = kDefaultWordDelimiters,
     .Key = "StopWordChrs:",
     .Format = Stored::ComaText,
     .FileOrder = 11},
    // Used by the open and save dialogs.
    {.Text = &S::DefaultFileExtension,
     .DefaultText = ".htm",
     .Key = "FileType:",
     .Format = Stored::Text,
     .FileOrder = 9},
    {.Number = &S::DefaultFileTypeIndex,
     .Default = 2,
     .Key = "FileTypeIndex:",
     .Format = Stored::Number,
     .FileOrder = 10},
    {.Text = &S::FilterDictionaryFile,
     .DefaultText = "",
     .Key = "DefaultWordFilterDictionary:",
     .Format = Stored::OptionalText,
     .FileOrder = 15},
};

template <class Member>
const Setting& Find(Member Setting::*column, Member member) {
  const auto* row = std::find_if(std::begin(kSettings), std::end(kSettings),
                                 [&](const Setting& s) { return s.*column == member; });
  if (row == std::end(kSettings))
    throw std::logic_error("a control without a row in the settings table");
  return *row;
}

}  // namespace

std::span<const Setting> Settings() {
  return kSettings;
}

const Setting& Setting_Of(int16_t FormModel::*checkBox) {
  return Find(&Setting::CheckBox, checkBox);
}

const Setting& Setting_Of(std::string FormModel::*textBox) {
  return Find(&Setting::TextBox, textBox);
}

void Set_Setting_Defaults(SettingsFields& s) {
  for (const Setting& row : kSettings) {
    if (row.Flag && row.Default)
      s.*row.Flag = static_cast<int16_t>(*row.Default);
    if (row.Number && row.Default)
      s.*row.Number = *row.Default;
    if (row.Text && row.DefaultText)
      s.*row.Text = row.DefaultText;
  }
}

}  // namespace zentrel::state

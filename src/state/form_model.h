#pragma once
// The window as data: every named control of the main window as a plain value, under the
// control's own name. Text boxes are strings, check boxes 16-bit values (0 or 1), drop-downs
// a list of entries plus their current text, menu entries a caption and a visible flag.
// Controls with a change handler are written through their setter, which runs the handler.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace zentrel::state {

struct DropDown {
  std::vector<std::string> List;
  std::string Text;
};

struct MenuEntry {
  std::string Caption;
  bool Visible = false;
};

inline constexpr int kMetaTagFieldCount = 13;

// The tabs from the left, 0 "Scan Keywords" .. 6 "Prefs"; the ones the core brings forward.
inline constexpr int16_t kChecksTab = 4;
inline constexpr int16_t kEditPageTab = 5;

// One finding of the page checks, in the words the "Checks" tab shows.
struct CheckFinding {
  std::string Severity;  // "error", "warning", "notice"
  std::string Rule;      // the rule's id
  std::string Message;   // UTF-8, whatever the page's codec
  int64_t Line = 0;
  int64_t Column = 0;
  int64_t Offset = 0;  // the byte of the page where the tag it is about starts
  bool operator==(const CheckFinding&) const = default;
};

// A length label's colour: within the limits, over the width, under the minimum.
enum class LengthLevel : int16_t { Within, Over, Under };

struct FormModel {
  // The main window.
  std::string Caption;
  double Left = 0, Top = 0, Width = 1024, Height = 720;
  double ScreenWidth = 1024, ScreenHeight = 768;
  int16_t SelectedTab = 0;

  // "Scan Keywords": keyword and word matching options.
  int16_t KeyWords_SortList = 0;
  int16_t KeyWords_RemoveDoubleKeyWordListings = 0;
  int16_t KeyWords_ForceSameCaseMatching = 0;
  int16_t KeyWords_MinKeyWordMatches_Option = 0;
  DropDown KeyWords_MinKeyWordMatches_DropDown;
  int16_t KeyWords_MatchScanType_CheckBOx = 0;
  int16_t KeyWordMatch_Disable_Part_Keyword_Matches = 0;
  int16_t WordMatch_ForceCase = 0;
  int16_t WordMatch_IgnoreAlphaNumericWords = 0;
  std::string Users_METATAGS_TextBox;  // "Additional Keywords"; setter runs its change handler
  // Result boxes and labels.
  std::string ScanKeyWords_KeyWordMatches_TextBox;
  std::string ScanKeyWords_KeyWordDensity_TextBox;
  std::string ScanKeyWords_DocumentWordCount_TextBox;
  std::string Body_Word_Count_Label;
  std::string Body_Word_Count_label2;

  // "Edit Meta Tags".
  std::array<std::string, kMetaTagFieldCount> MetaTag_TextBox;  // setter runs the change handler
  std::array<std::string, kMetaTagFieldCount> MetaTag_TextBox_ToolTip;
  std::array<int16_t, kMetaTagFieldCount> MetaTag_Selection_CheckBox{};
  // "52 chars, 480 px" under the title (0) and the description (1) field.
  std::array<std::string, 2> MetaTag_Length_Label;
  std::array<LengthLevel, 2> MetaTag_Length_Level{};
  DropDown PageMetaTags_Rating_DropDown;
  DropDown PageMetaTags_Robots_DropDown;
  DropDown PageMetaTags_Distribution_DropDown;
  DropDown PageMetaTags_RevisitAfter_DropDown;
  DropDown PageMetaTags_Expires_Day;
  DropDown PageMetaTags_Expires_Month;
  DropDown PageMetaTags_Expires_Year;

  // "View Body".
  std::string ScanKeyWords_StrippedHTMLDocument_TextBox;
  int16_t ViewBody_ShowRAWBODY_CHeckBox = 0;

  // "Page Report".
  std::string ReportTextBox;
  int16_t PageReport_Export_WordCount_CheckBox = 0;

  // "Checks": the findings of the severities ticked, and the count above them.
  std::vector<CheckFinding> Checks_Findings_Table;
  int32_t Checks_Findings_Table_Row = -1;  // the row double-clicked, 0-based
  int16_t Checks_ShowErrors_CheckBox = 1;
  int16_t Checks_ShowWarnings_CheckBox = 1;
  int16_t Checks_ShowNotices_CheckBox = 1;
  std::string Checks_Summary_Label;

  // "Edit Page": the page source and its search.
  std::string Html_Document_Editor;
  int32_t Html_Document_Editor_SelStart = 0;  // 0-based
  int32_t Html_Document_Editor_SelLength = 0;
  std::string Html_Document_Editor_SearchText;
  int16_t EditHtml_SearchCaseFlag = 0;

  // "Prefs": filter dictionary.
  std::string WordFiltersPage_WordDictionary;
  std::string WordFiltersPage_CurrentWordDictionary_Text;
  std::string WordFiltersPage_SelectDefaultWordDictionary_Text;
  // "Prefs": decoder.
  int16_t HtmlDecodePref_IncludeTitleWithBody_CheckBox = 0;
  int16_t HtmlDecodePref_IncludeALTTEXT_CheckBox = 0;
  int16_t HtmlDecodePref_IncludeBODYTEXT_CheckBox = 0;
  int16_t HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox = 0;
  std::string HtmlDecodePref_WordDecodeStopCHR_TextBox;  // setter runs its change handler
  // "Prefs": encoder.
  int16_t MetaTagEncodePref_SwapContentAndNameOrder_CheckBox = 0;
  int16_t MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox = 0;
  int16_t TagsOption_USE_META_TITLE = 0;
  int16_t Check2 = 0;  // "Replace Known META TAGS": shown only
  // "Prefs": saving.
  int16_t SavePref_ShowChanges_CheckBox = 0;
  int16_t SavePref_KeepBackup_CheckBox = 0;
  // "Prefs": environment.
  DropDown Defaults_Users_FileExtend_DropDown;

  // "&File" menu: the recent-file entries and the separator before them.
  MenuEntry mnu_file_QuickLoadSlash;
  std::array<MenuEntry, 5> mnu_file_QuickLoadFile;  // mnu_file_QuickLoadFile1..5

  // The window's modified marker: the page or the fields hold edits not yet saved.
  bool PageModified = false;
  // What the last command has to say in the status bar ("" for nothing).
  std::string StatusBar_Text;

  // Set when the program has ended ("&Quit", closing the window); the view then closes.
  bool ProgramHasEnded = false;
  // Set by "&Help" > "About"; the view shows the about box and clears it.
  bool AboutBoxRequested = false;
};

}  // namespace zentrel::state

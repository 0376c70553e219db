#include "commands/scan_keywords.h"

#include <optional>
#include <utility>

#include "analysis/analysis_driver.h"
#include "base/text.h"
#include "commands/checks.h"
#include "commands/edit_meta_tags.h"
#include "commands/page_loading.h"
#include "commands/setting_boxes.h"
#include "commands/view_body_report.h"
#include "commands/word_filters.h"
#include "document/document_cache.h"
#include "state/app_state.h"

namespace zentrel::commands {

namespace {

void Show(std::optional<std::string>& text, std::string& box) {
  if (text)
    box = std::move(*text);
  text.reset();
}

// What the analysis produced goes into its boxes; what it did not get to stays as it was.
void Show_Analysis(AppState& s) {
  state::FormModel& f = s.Form;
  Show(s.WordCountText, f.ScanKeyWords_DocumentWordCount_TextBox);
  if (s.BodyViewText) {
    ViewBody_Forget_Words(s);
    Show(s.BodyViewText, f.ScanKeyWords_StrippedHTMLDocument_TextBox);
  } else if (std::exchange(s.BodyViewWordsDue, false)) {
    ViewBody_Forget_Words(s);
    f.ScanKeyWords_StrippedHTMLDocument_TextBox = std::string();
    s.BodyViewPending = true;
    s.BodyViewWordCount = s.DocumentWordCount;
  }
  Show(s.MatchesText, f.ScanKeyWords_KeyWordMatches_TextBox);
  Show(s.UniqueWordsLabel, f.Body_Word_Count_Label);
  Show(s.WordsLabel, f.Body_Word_Count_label2);
  Show(s.DensityText, f.ScanKeyWords_KeyWordDensity_TextBox);
  if (std::exchange(s.ResultFieldsDue, false)) {
    Set_Metatag_Page_TextBoxes(s);
    SetWordFilter_TextBoxes(s);
  }
  Show(s.ReportText, f.ReportTextBox);
}

}  // namespace

void Command1_Click(AppState& s) {
  Do_Load_File(s, s.CurrentFileName, 0);
}

void Command2_Click(AppState& s) {
  ReScanPage(s);
}

void ReScanPage(AppState& s) {
  s.DocumentLength = document::Reload_File_From_Memory_TO_Cache(s);
  Check_And_Scan(s, s.CurrentFileName);
}

void Meta_Tag_KeyWord_Scan(AppState& s, const std::string& /*fileName*/) {
  try {
    analysis::Analyse_Page(s);
  } catch (...) {
    Show_Analysis(s);
    throw;
  }
  Show_Analysis(s);
}

void Set_Users_METATAGS_TextBox(AppState& s, const std::string& text) {
  s.Form.Users_METATAGS_TextBox = text;
  Users_METATAGS_TextBox_Change(s);
}

void Users_METATAGS_TextBox_Change(AppState& s) {
  s.UsersKeywordsText = s.Form.Users_METATAGS_TextBox;
}

void Users_METATAGS_Clear_Command_Click(AppState& s) {
  Set_Users_METATAGS_TextBox(s, "");
}

// Each box sets its setting only (the settings table says which); the next analysis reads it.
void KeyWords_SortList_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::KeyWords_SortList);
}

void KeyWords_RemoveDoubleKeyWordListings_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::KeyWords_RemoveDoubleKeyWordListings);
}

void KeyWords_ForceSameCaseMatching_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::KeyWords_ForceSameCaseMatching);
}

void KeyWords_MinKeyWordMatches_Option_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::KeyWords_MinKeyWordMatches_Option);
}

void KeyWords_MinKeyWordMatches_DropDown_Click(AppState& s) {
  const double picked = text::Val(s.Form.KeyWords_MinKeyWordMatches_DropDown.Text);
  if (picked >= 1 && picked <= 99)
    s.KeywordsMinMatches = static_cast<int16_t>(picked);
}

void KeyWords_MatchScanType_CheckBOx_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::KeyWords_MatchScanType_CheckBOx);
}

void KeyWordMatch_Disable_Part_Keyword_Matches_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::KeyWordMatch_Disable_Part_Keyword_Matches);
}

void WordMatch_ForceCase_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::WordMatch_ForceCase);
}

void WordMatch_IgnoreAlphaNumericWords_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::WordMatch_IgnoreAlphaNumericWords);
}

}  // namespace zentrel::commands

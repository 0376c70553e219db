#include "commands/view_body_report.h"

#include <algorithm>

#include "base/file_io.h"
#include "commands/page_saving.h"
#include "commands/setting_boxes.h"
#include "state/app_state.h"

namespace zentrel::commands {

namespace {

constexpr int16_t kViewBodyTab = 2;  // SelectedTab of "View Body"

// Writes a text area's whole text, as it stands, to a file the user picks. A failed write is
// shown; the atomic writer has left any old file of that name intact.
void Save_Text_As(AppState& s, const std::string& text) {
  std::string path = Do_Select_Save_File(s, "", "(*.txt)|*.txt|", 1, ".txt");
  if (path.empty())
    return;
  try {
    file_io::WriteFileAtomic(path, text, *s.files);
  } catch (const file_io::FileError& e) {
    s.platform->ShowMessage(e.what());
  }
}

}  // namespace

void PageReport_SAVEAS_Click(AppState& s) {
  if (!s.Form.ReportTextBox.empty())
    Do_Save_REPORT(s);
}

void Do_Save_REPORT(AppState& s) {
  Save_Text_As(s, s.Form.ReportTextBox);
}

// No test for an empty text: an empty body is saved as an empty file.
void ViewBody_SaveAs_Click(AppState& s) {
  ViewBody_Show(s);
  Save_Text_As(s, s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox);
}

void PageReport_Export_WordCount_CheckBox_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::PageReport_Export_WordCount_CheckBox);
}

void ViewBody_ShowRAWBODY_CHeckBox_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::ViewBody_ShowRAWBODY_CHeckBox);
}

void ViewBody_Show(AppState& s) {
  if (!s.BodyViewPending)
    return;
  const state::WordList& words = s.BodyViewWords ? *s.BodyViewWords : s.DocumentWords;
  s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox =
      words.Join(static_cast<size_t>(std::max(s.BodyViewWordCount, 0)), ", ");
  ViewBody_Forget_Words(s);
}

void ViewBody_Forget_Words(AppState& s) {
  s.BodyViewPending = false;
  s.BodyViewWords.reset();
}

void Show_Selected_Tab(AppState& s) {
  if (s.Form.SelectedTab == kViewBodyTab)
    ViewBody_Show(s);
}

}  // namespace zentrel::commands

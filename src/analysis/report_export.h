#pragma once
// Saving the page report and the body text, the additional keywords box, and the two check
// boxes that shape the next analysis.

#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::analysis {

void PageReport_SAVEAS_Click(AppState& s);
void Do_Save_REPORT(AppState& s);
void ViewBody_SaveAs_Click(AppState& s);
void PageReport_Export_WordCount_CheckBox_Click(AppState& s);
void ViewBody_ShowRAWBODY_CHeckBox_Click(AppState& s);
// Writes the additional keywords box and runs its change handler.
void Set_Users_METATAGS_TextBox(AppState& s, const std::string& text);
void Users_METATAGS_TextBox_Change(AppState& s);
void Users_METATAGS_Clear_Command_Click(AppState& s);

}  // namespace zentrel::analysis

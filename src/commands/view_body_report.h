#pragma once
// The "View Body" and "Page Report" tabs: saving the body text and the report, and the two
// check boxes that shape the next analysis.

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

void PageReport_SAVEAS_Click(AppState& s);
void Do_Save_REPORT(AppState& s);
void ViewBody_SaveAs_Click(AppState& s);
void PageReport_Export_WordCount_CheckBox_Click(AppState& s);
void ViewBody_ShowRAWBODY_CHeckBox_Click(AppState& s);

}  // namespace zentrel::commands

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

// Puts the document's words into "View Body" when the last analysis left them to be joined;
// run when the box is shown or its text is needed. Cheap when there is nothing to do.
void ViewBody_Show(AppState& s);
// "View Body" no longer waits for words (it was filled or cleared).
void ViewBody_Forget_Words(AppState& s);
// Runs what the selected tab needs before it is seen: "View Body" joins its words.
void Show_Selected_Tab(AppState& s);

}  // namespace zentrel::commands

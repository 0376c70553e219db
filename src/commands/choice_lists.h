#pragma once
// The choice lists of "Edit Meta Tags" (rating, robots, distribution, revisit-after, the
// expiry date) and the default file extension list of "Prefs".

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

void Set_Drop_Downs(AppState& s);
void PageMetaTags_Rating_DropDown_Click(AppState& s);
void PageMetaTags_Robots_DropDown_Click(AppState& s);
void PageMetaTags_Distribution_DropDown_Click(AppState& s);
void PageMetaTags_RevisitAfter_DropDown_Click(AppState& s);
void PageMetaTags_Expires_SetDate_Click(AppState& s);

}  // namespace zentrel::commands

#pragma once
// Edits not yet saved: the page source or the META tag fields changed since the page was
// loaded, saved or started anew. Before a command replaces the page (a load, a recent page,
// a drop, "&New", "&Quit") the user decides: Save, Discard or Cancel.

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

bool Has_Unsaved_Edits(const AppState& s);
// The page and the fields as they stand now count as saved.
void Mark_Page_Saved(AppState& s);
// Shows the window's modified marker when there are unsaved edits.
void Update_Modified_Flag(AppState& s);
// True when the page may be replaced: no unsaved edits, or Discard, or Save and the save
// went through; false for Cancel, and for a save that was cancelled or refused.
bool Settle_Unsaved_Edits(AppState& s);

}  // namespace zentrel::commands

#include "commands/unsaved_edits.h"

#include "commands/page_saving.h"
#include "state/app_state.h"

namespace zentrel::commands {

bool Has_Unsaved_Edits(const AppState& s) {
  return s.Form.Html_Document_Editor != s.SavedPageText ||
         s.Form.MetaTag_TextBox != s.SavedMetaTagFields;
}

void Mark_Page_Saved(AppState& s) {
  s.SavedPageText = s.Form.Html_Document_Editor;
  s.SavedMetaTagFields = s.Form.MetaTag_TextBox;
  s.Form.PageModified = false;
}

void Update_Modified_Flag(AppState& s) {
  s.Form.PageModified = Has_Unsaved_Edits(s);
}

bool Settle_Unsaved_Edits(AppState& s) {
  if (!Has_Unsaved_Edits(s))
    return true;
  const std::string page = s.CurrentFileName.empty() ? "the new page" : s.CurrentFileName;
  switch (s.platform->AskSaveChanges("Save the changes to " + page + "?")) {
    case state::SaveChoice::Discard:
      return true;
    case state::SaveChoice::Cancel:
      return false;
    case state::SaveChoice::Save:
      break;
  }
  if (s.CurrentFileName.empty())
    Do_save(s);
  else
    HTML_ENCODE_Document(s, s.CurrentFileName, 0);
  return !Has_Unsaved_Edits(s);
}

}  // namespace zentrel::commands

#include "app/page_saving.h"

#include "app/page_loading.h"
#include "app/startup.h"
#include "metatags/page_encoder.h"
#include "state/app_state.h"

namespace zentrel::app {

// The encoder returns at once for an empty name, so this entry writes nothing.
void mnu_File_SAVE_Click(AppState& s) {
  metatags::HTML_ENCODE_Document(s, "", 0);
}

void Picture2_Click(AppState& s) {
  metatags::HTML_ENCODE_Document(s, s.CurrentFileName, 0);
}

void mnu_File_SAVESA_Click(AppState& s) {
  Do_save(s);
}

void Do_save(AppState& s) {
  if (s.DocumentLength == 0)
    return;
  state::FileDialog dialog{s.CurrentFileName, kPageFilter, s.DefaultFileTypeIndex,
                           s.DefaultFileExtension};
  if (!s.platform->ShowSave(dialog))
    return;
  s.DefaultFileTypeIndex = dialog.FilterIndex;
  s.DefaultFileExtension = dialog.DefaultExt;
  if (dialog.FileName.empty())
    return;
  if (metatags::HTML_ENCODE_Document(s, dialog.FileName, 0)) {
    s.CurrentFileName = dialog.FileName;
    SET_PROGRAM_TITLE(s, dialog.FileName);
  }
}

std::string Do_Select_Save_File(AppState& s, const std::string& fileName, const std::string& filter,
                                int16_t filterIndex, const std::string& defaultExt) {
  state::FileDialog dialog{fileName, filter, filterIndex, defaultExt};
  if (!s.platform->ShowSave(dialog))
    return {};
  return dialog.FileName;
}

}  // namespace zentrel::app

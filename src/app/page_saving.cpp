#include "app/page_saving.h"

#include "app/app_state.h"

namespace zentrel::app {

std::string Do_Select_Save_File(AppState& s, const std::string& fileName, const std::string& filter,
                                int16_t filterIndex, const std::string& defaultExt) {
  FileDialog dialog{fileName, filter, filterIndex, defaultExt};
  if (!s.platform->ShowSave(dialog))
    return {};
  return dialog.FileName;
}

}  // namespace zentrel::app

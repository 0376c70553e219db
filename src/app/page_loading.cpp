#include "app/page_loading.h"

#include "app/app_state.h"

namespace zentrel::app {

std::string Do_Select_Load_File(AppState& s, const std::string& filter, int16_t filterIndex,
                                const std::string& defaultExt) {
  FileDialog dialog{"", filter, filterIndex, defaultExt};
  if (!s.platform->ShowOpen(dialog))
    return {};
  return dialog.FileName;
}

}  // namespace zentrel::app

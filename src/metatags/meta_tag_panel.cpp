#include "metatags/meta_tag_panel.h"

#include "app/app_state.h"

namespace zentrel::metatags {}  // namespace zentrel::metatags

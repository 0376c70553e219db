#include "metatags/tag_list_file.h"

#include "app/app_state.h"

namespace zentrel::metatags {}  // namespace zentrel::metatags

#include "metatags/choice_lists.h"

#include "app/app_state.h"

namespace zentrel::metatags {}  // namespace zentrel::metatags

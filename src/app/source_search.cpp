#include "app/source_search.h"

#include "app/app_state.h"

namespace zentrel::app {}  // namespace zentrel::app

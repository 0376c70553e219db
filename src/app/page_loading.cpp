#include "app/page_loading.h"

#include "app/app_state.h"

namespace zentrel::app {}  // namespace zentrel::app

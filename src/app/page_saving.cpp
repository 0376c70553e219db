#include "app/page_saving.h"

#include "app/app_state.h"

namespace zentrel::app {}  // namespace zentrel::app

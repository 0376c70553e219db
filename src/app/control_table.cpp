#include "app/control_table.h"

#include "app/app_state.h"

namespace zentrel::app {}  // namespace zentrel::app

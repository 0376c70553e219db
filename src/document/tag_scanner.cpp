#include "document/tag_scanner.h"

#include "app/app_state.h"

namespace zentrel::document {}  // namespace zentrel::document

#include "document/document_cache.h"

#include "app/app_state.h"

namespace zentrel::document {}  // namespace zentrel::document

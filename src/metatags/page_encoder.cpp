#include "metatags/page_encoder.h"

#include "app/app_state.h"

namespace zentrel::metatags {}  // namespace zentrel::metatags

#include "analysis/keyword_list.h"

#include "app/app_state.h"

namespace zentrel::analysis {}  // namespace zentrel::analysis

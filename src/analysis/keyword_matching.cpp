#include "analysis/keyword_matching.h"

#include "app/app_state.h"

namespace zentrel::analysis {}  // namespace zentrel::analysis

#include "analysis/analysis_driver.h"

#include "app/app_state.h"

namespace zentrel::analysis {}  // namespace zentrel::analysis

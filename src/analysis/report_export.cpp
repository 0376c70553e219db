#include "analysis/report_export.h"

#include "app/app_state.h"

namespace zentrel::analysis {}  // namespace zentrel::analysis

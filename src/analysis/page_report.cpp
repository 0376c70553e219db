#include "analysis/page_report.h"

#include "app/app_state.h"

namespace zentrel::analysis {}  // namespace zentrel::analysis

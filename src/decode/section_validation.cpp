#include "decode/section_validation.h"

#include "app/app_state.h"

namespace zentrel::decode {}  // namespace zentrel::decode

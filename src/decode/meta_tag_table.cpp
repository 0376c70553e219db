#include "decode/meta_tag_table.h"

#include "app/app_state.h"

namespace zentrel::decode {}  // namespace zentrel::decode

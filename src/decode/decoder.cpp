#include "decode/decoder.h"

#include "app/app_state.h"

namespace zentrel::decode {}  // namespace zentrel::decode

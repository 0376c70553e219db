#include "words/filter_dictionary.h"

#include "app/app_state.h"

namespace zentrel::words {}  // namespace zentrel::words

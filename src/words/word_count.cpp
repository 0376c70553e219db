#include "words/word_count.h"

#include "app/app_state.h"

namespace zentrel::words {}  // namespace zentrel::words

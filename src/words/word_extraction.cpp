#include "words/word_extraction.h"

#include "app/app_state.h"

namespace zentrel::words {}  // namespace zentrel::words

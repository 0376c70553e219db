#include "words/dictionary_commands.h"

#include "app/app_state.h"

namespace zentrel::words {}  // namespace zentrel::words

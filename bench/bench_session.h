#pragma once
// A started application state for the benchmarks, with a page put into the document cache
// from memory.

#include <memory>
#include <string>

#include "state/app_state.h"
#include "state/silent_platform.h"

namespace zentrel::bench {

struct Session {
  explicit Session(const std::string& page);
  state::SilentPlatform platform;
  std::unique_ptr<AppState> state;
};

}  // namespace zentrel::bench

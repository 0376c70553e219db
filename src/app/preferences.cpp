#include "app/preferences.h"

#include "app/app_state.h"

namespace zentrel::app {

std::pair<std::string, std::string> SplitPreferenceLine(const std::string& line) {
  if (line.size() < 2)
    return {};
  size_t colon = line.find(':');
  if (colon == std::string::npos)
    return {};
  return {line.substr(0, colon + 1), line.substr(colon + 1)};
}

}  // namespace zentrel::app

#include "state/silent_platform.h"

#include <filesystem>

namespace zentrel::state {

std::string Running_Program_Folder() {
  std::error_code ec;
  auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
  return ec ? std::string(".") : exe.parent_path().string();
}

}  // namespace zentrel::state

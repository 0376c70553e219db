#include "bench_session.h"

#include <filesystem>

#include "app/startup.h"
#include "document/document_cache.h"

namespace zentrel::bench {

std::string Program_Folder_Of_Executable() {
  std::error_code ec;
  auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
  return ec ? std::string(".") : exe.parent_path().string();
}

Session::Session(const std::string& page)
    : platform(Program_Folder_Of_Executable()), state(std::make_unique<AppState>(platform)) {
  app::Form_Load(*state);
  state->Form.Html_Document_Editor = page;
  state->DocumentLength = document::Reload_File_From_Memory_TO_Cache(*state);
}

}  // namespace zentrel::bench

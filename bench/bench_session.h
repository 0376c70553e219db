#pragma once
// A started application state for the benchmarks, with a page put into the document cache
// from memory.

#include <memory>
#include <string>

#include "app/app_state.h"
#include "app/platform.h"

namespace zentrel::bench {

class QuietPlatform : public app::Platform {
 public:
  explicit QuietPlatform(std::string folder) : folder_(std::move(folder)) {}
  bool ShowOpen(app::FileDialog&) override { return false; }
  bool ShowSave(app::FileDialog&) override { return false; }
  bool AskYesNo(const std::string&, const std::string&) override { return true; }
  void ShowMessage(const std::string&) override {}
  void BeginBusy() override {}
  void EndBusy() override {}
  void DoEvents() override {}
  void OpenDocument(const std::string&) override {}
  std::string ExecutableFolder() override { return folder_; }

 private:
  std::string folder_;
};

// The program folder of the build (where dictionary/ lies), found beside this executable.
std::string Program_Folder_Of_Executable();

struct Session {
  explicit Session(const std::string& page);
  QuietPlatform platform;
  std::unique_ptr<AppState> state;
};

}  // namespace zentrel::bench

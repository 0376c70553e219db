#pragma once
// A platform with nobody at the screen, for benchmarks and fuzzing: dialogs are cancelled,
// every question is answered Yes, messages are dropped, and the program folder is the folder
// of the running executable.

#include <string>

#include "state/platform.h"

namespace zentrel::state {

// The folder of the running executable ("." when it cannot be told).
std::string Running_Program_Folder();

class SilentPlatform : public Platform {
 public:
  bool ShowOpen(FileDialog&) override { return false; }
  bool ShowSave(FileDialog&) override { return false; }
  bool AskYesNo(const std::string&, const std::string&) override { return true; }
  bool ConfirmChanges(const std::string&, const std::vector<std::string>&) override { return true; }
  void ShowMessage(const std::string&) override {}
  void ShowCritical(const std::string&) override {}
  void BeginBusy() override {}
  void EndBusy() override {}
  void DoEvents() override {}
  void OpenDocument(const std::string&) override {}
  std::string ExecutableFolder() override { return Running_Program_Folder(); }
};

}  // namespace zentrel::state

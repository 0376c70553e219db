#pragma once
// The command line's Platform: no dialogs, messages and questions to stderr in the program's
// own words, WARNING questions answered by --force.

#include <ostream>
#include <string>

#include "state/platform.h"

namespace zentrel::cli {

class CliPlatform : public state::Platform {
 public:
  CliPlatform(std::ostream& err, std::string executableFolder, bool answerYes)
      : err_(err), folder_(std::move(executableFolder)), answerYes_(answerYes) {}

  bool ShowOpen(state::FileDialog&) override { return false; }
  bool ShowSave(state::FileDialog&) override { return false; }
  bool AskYesNo(const std::string& title, const std::string& text) override;
  // The changes go to the stream given to ShowChangesOn (and the save goes on); a save is
  // never asked about otherwise.
  bool ConfirmChanges(const std::string& diffText, const std::vector<std::string>&) override {
    if (changesOut_ != nullptr)
      *changesOut_ << diffText;
    return true;
  }
  void ShowChangesOn(std::ostream* out) { changesOut_ = out; }
  void ShowMessage(const std::string& text) override;
  void ShowCritical(const std::string& text) override { ShowMessage(text); }
  void BeginBusy() override {}
  void EndBusy() override {}
  void DoEvents() override {}
  void OpenDocument(const std::string&) override {}
  std::string ExecutableFolder() override { return folder_; }

  int messagesShown() const { return messages_; }
  // What the messages are about (the program, a page): written before each one, when set.
  void SetSubject(std::string subject) { subject_ = std::move(subject); }

 private:
  std::ostream& err_;
  std::string folder_;
  bool answerYes_;
  int messages_ = 0;
  std::string subject_;
  std::ostream* changesOut_ = nullptr;
};

}  // namespace zentrel::cli

#include "cli/cli_platform.h"

namespace zentrel::cli {

bool CliPlatform::AskYesNo(const std::string& title, const std::string& text) {
  err_ << title << ": " << text << (answerYes_ ? "Yes" : "No") << "\n";
  return answerYes_;
}

void CliPlatform::ShowMessage(const std::string& text) {
  ++messages_;
  if (!subject_.empty())
    err_ << subject_ << ": ";
  err_ << text << "\n";
}

}  // namespace zentrel::cli

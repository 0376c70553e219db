#pragma once
// The scripted Platform of the tests: a queue of answers for dialogs and questions, a log of
// every question and message shown. A question with no scripted answer, or an answer left
// unused when the fake is destroyed, fails the test.

#include <deque>
#include <string>
#include <vector>

#include "state/platform.h"

namespace zentrel::testing {

class FakePlatform : public state::Platform {
 public:
  explicit FakePlatform(std::string executableFolder = "/nonexistent-zentrel-folder");
  ~FakePlatform() override;

  // Scripted answers, consumed in order.
  void AnswerOpen(const std::string& path, int filterIndex = -1, const std::string& ext = "");
  void AnswerSave(const std::string& path, int filterIndex = -1, const std::string& ext = "");
  void CancelDialog();
  void AnswerYes();
  void AnswerNo();

  bool ShowOpen(state::FileDialog& dialog) override;
  bool ShowSave(state::FileDialog& dialog) override;
  bool AskYesNo(const std::string& title, const std::string& text) override;
  // Logs the diff and answers saveChanges.
  bool ConfirmChanges(const std::string& diffText,
                      const std::vector<std::string>& vanishingTags) override {
    changesShown.push_back(diffText);
    vanishingShown.push_back(vanishingTags);
    return saveChanges;
  }
  void ShowMessage(const std::string& text) override;
  void ShowCritical(const std::string& text) override { criticals.push_back(text); }
  void BeginBusy() override {
    ++busyDepth;
    ++busyCount;
  }
  void EndBusy() override { --busyDepth; }
  void DoEvents() override { ++eventsRun; }
  void OpenDocument(const std::string& path) override { openedDocuments.push_back(path); }
  std::string ExecutableFolder() override { return executableFolder; }

  std::string executableFolder;
  std::vector<std::string> questions;  // "TITLE: text"
  std::vector<std::string> messages;
  std::vector<std::string> criticals;
  std::vector<state::FileDialog> dialogs;  // what each dialog was shown with
  std::vector<std::string> openedDocuments;
  std::vector<std::string> changesShown;
  std::vector<std::vector<std::string>> vanishingShown;
  bool saveChanges = true;
  int busyDepth = 0;
  int busyCount = 0;
  long eventsRun = 0;

 private:
  struct Answer {
    enum Kind { Open, Save, Cancel, Yes, No } kind;
    std::string path;
    int filterIndex = -1;
    std::string ext;
  };
  bool Dialog(state::FileDialog& dialog, Answer::Kind kind);
  std::deque<Answer> answers_;
};

// Cancels every dialog and answers No to every question, so any control can be worked.
class CancellingPlatform : public FakePlatform {
 public:
  using FakePlatform::FakePlatform;
  bool ShowOpen(state::FileDialog&) override { return false; }
  bool ShowSave(state::FileDialog&) override { return false; }
  bool AskYesNo(const std::string&, const std::string&) override { return false; }
  bool ConfirmChanges(const std::string&, const std::vector<std::string>&) override {
    return false;
  }
};

}  // namespace zentrel::testing

#pragma once
// The scripted Platform of the tests: a queue of answers for dialogs and questions, a log of
// every question and message shown. A question with no scripted answer, or an answer left
// unused when the fake is destroyed, fails the test.

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "state/platform.h"

namespace zentrel::testing {

class FakePlatform : public state::Platform {
 public:
  explicit FakePlatform(std::string folder = "/nonexistent-zentrel-folder")
      : executableFolder(std::move(folder)) {}
  ~FakePlatform() override {
    EXPECT_TRUE(answers_.empty()) << answers_.size() << " scripted answer(s) were never used";
    EXPECT_EQ(busyDepth, 0) << "the busy pointer was not restored";
  }

  // Scripted answers, consumed in order; a dialog's filter index and extension only when given.
  void AnswerOpen(const std::string& path, int filterIndex = -1, const std::string& ext = "") {
    answers_.push_back({'O', path, filterIndex, ext});
  }
  void AnswerSave(const std::string& path, int filterIndex = -1, const std::string& ext = "") {
    answers_.push_back({'S', path, filterIndex, ext});
  }
  void CancelDialog() { answers_.push_back({'C', "", -1, ""}); }
  void AnswerYes() { answers_.push_back({'Y', "", -1, ""}); }
  void AnswerNo() { answers_.push_back({'N', "", -1, ""}); }
  void AnswerSaveChanges(state::SaveChoice choice) {
    answers_.push_back({'Q', "", -1, "", choice});
  }

  bool ShowOpen(state::FileDialog& dialog) override { return Dialog(dialog, 'O'); }
  bool ShowSave(state::FileDialog& dialog) override { return Dialog(dialog, 'S'); }
  bool AskYesNo(const std::string& title, const std::string& text) override {
    questions.push_back(title + ": " + text);
    const char kind = Next(text);
    EXPECT_TRUE(kind == 'Y' || kind == 'N') << "a dialog's answer for the question " << text;
    return kind == 'Y';
  }
  // Logs the diff and answers saveChanges.
  bool ConfirmChanges(const std::string& diffText,
                      const std::vector<std::string>& vanishingTags) override {
    changesShown.push_back(diffText);
    vanishingShown.push_back(vanishingTags);
    return saveChanges;
  }
  state::SaveChoice AskSaveChanges(const std::string& text) override {
    questions.push_back(text);
    const bool scripted = !answers_.empty() && answers_.front().kind == 'Q';
    const state::SaveChoice choice = scripted ? answers_.front().choice : state::SaveChoice::Cancel;
    if (Next(text) != 'Q')
      ADD_FAILURE() << "a Save / Discard / Cancel answer for the question " << text;
    return choice;
  }
  void ShowMessage(const std::string& text) override { messages.push_back(text); }
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
    char kind;  // Open, Save, Cancel, Yes, No, Q: Save / Discard / Cancel
    std::string path;
    int filterIndex = -1;
    std::string ext;
    state::SaveChoice choice = state::SaveChoice::Cancel;
  };
  char Next(const std::string& what) {
    if (answers_.empty()) {
      ADD_FAILURE() << "nothing scripted for " << what;
      return 'C';
    }
    const char kind = answers_.front().kind;
    if (kind == 'O' || kind == 'S')
      next_ = answers_.front();
    answers_.pop_front();
    return kind;
  }
  bool Dialog(state::FileDialog& dialog, char kind) {
    dialogs.push_back(dialog);
    const char given = Next("a dialog with filter " + dialog.Filter);
    if (given == 'C')
      return false;
    EXPECT_EQ(given, kind) << "the scripted answer is for another kind of dialog";
    dialog.FileName = next_.path;
    if (next_.filterIndex >= 0)
      dialog.FilterIndex = next_.filterIndex;
    if (!next_.ext.empty())
      dialog.DefaultExt = next_.ext;
    return true;
  }
  std::deque<Answer> answers_;
  Answer next_{};
};

// Cancels every dialog, answers No to every question and Discard to the one about unsaved
// edits, so any control can be worked.
class CancellingPlatform : public FakePlatform {
 public:
  using FakePlatform::FakePlatform;
  bool ShowOpen(state::FileDialog&) override { return false; }
  bool ShowSave(state::FileDialog&) override { return false; }
  bool AskYesNo(const std::string&, const std::string&) override { return false; }
  state::SaveChoice AskSaveChanges(const std::string&) override {
    return state::SaveChoice::Discard;
  }
  bool ConfirmChanges(const std::string&, const std::vector<std::string>&) override {
    return false;
  }
};

}  // namespace zentrel::testing

#include "fake_platform.h"

#include <gtest/gtest.h>

namespace zentrel::testing {

FakePlatform::FakePlatform(std::string folder) : executableFolder(std::move(folder)) {}

FakePlatform::~FakePlatform() {
  EXPECT_TRUE(answers_.empty()) << answers_.size() << " scripted answer(s) were never used";
  EXPECT_EQ(busyDepth, 0) << "the busy pointer was not restored";
}

void FakePlatform::AnswerOpen(const std::string& path, int filterIndex, const std::string& ext) {
  answers_.push_back({Answer::Open, path, filterIndex, ext});
}
void FakePlatform::AnswerSave(const std::string& path, int filterIndex, const std::string& ext) {
  answers_.push_back({Answer::Save, path, filterIndex, ext});
}
void FakePlatform::CancelDialog() {
  answers_.push_back({Answer::Cancel, "", -1, ""});
}
void FakePlatform::AnswerYes() {
  answers_.push_back({Answer::Yes, "", -1, ""});
}
void FakePlatform::AnswerNo() {
  answers_.push_back({Answer::No, "", -1, ""});
}

void FakePlatform::AnswerSaveChanges(state::SaveChoice choice) {
  answers_.push_back({Answer::SaveChanges, "", -1, "", choice});
}

bool FakePlatform::Dialog(state::FileDialog& dialog, Answer::Kind kind) {
  dialogs.push_back(dialog);
  if (answers_.empty()) {
    ADD_FAILURE() << "unexpected file dialog with filter " << dialog.Filter;
    return false;
  }
  Answer a = answers_.front();
  answers_.pop_front();
  if (a.kind == Answer::Cancel)
    return false;
  EXPECT_EQ(a.kind, kind) << "the scripted answer is for the other kind of dialog";
  dialog.FileName = a.path;
  if (a.filterIndex >= 0)
    dialog.FilterIndex = a.filterIndex;
  if (!a.ext.empty())
    dialog.DefaultExt = a.ext;
  return true;
}

bool FakePlatform::ShowOpen(state::FileDialog& dialog) {
  return Dialog(dialog, Answer::Open);
}
bool FakePlatform::ShowSave(state::FileDialog& dialog) {
  return Dialog(dialog, Answer::Save);
}

bool FakePlatform::AskYesNo(const std::string& title, const std::string& text) {
  questions.push_back(title + ": " + text);
  if (answers_.empty() ||
      (answers_.front().kind != Answer::Yes && answers_.front().kind != Answer::No)) {
    ADD_FAILURE() << "unexpected question: " << text;
    return false;
  }
  bool yes = answers_.front().kind == Answer::Yes;
  answers_.pop_front();
  return yes;
}

state::SaveChoice FakePlatform::AskSaveChanges(const std::string& text) {
  questions.push_back(text);
  if (answers_.empty() || answers_.front().kind != Answer::SaveChanges) {
    ADD_FAILURE() << "unexpected question: " << text;
    return state::SaveChoice::Cancel;
  }
  const state::SaveChoice choice = answers_.front().choice;
  answers_.pop_front();
  return choice;
}

void FakePlatform::ShowMessage(const std::string& text) {
  messages.push_back(text);
}

}  // namespace zentrel::testing

#pragma once
// The Platform of the desktop program: Qt's dialogs, message boxes, busy pointer and events.

#include "state/platform.h"
#include "ui/common_dialog.h"

class QWidget;

namespace zentrel::ui {

class QtPlatform : public state::Platform {
 public:
  // Dialogs and message boxes are owned by this window (set once the window exists).
  void SetOwner(QWidget* owner) { owner_ = owner; }

  bool ShowOpen(state::FileDialog& dialog) override;
  bool ShowSave(state::FileDialog& dialog) override;
  bool AskYesNo(const std::string& title, const std::string& text) override;
  bool ConfirmChanges(const std::string& diffText,
                      const std::vector<std::string>& vanishingTags) override;
  void ShowMessage(const std::string& text) override;
  void ShowCritical(const std::string& text) override;
  void BeginBusy() override;
  void EndBusy() override;
  void DoEvents() override;
  void OpenDocument(const std::string& path) override;
  std::string ExecutableFolder() override;

 private:
  QWidget* owner_ = nullptr;
};

}  // namespace zentrel::ui

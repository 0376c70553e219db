#include "ui/qt_platform.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QEventLoop>
#include <QMessageBox>
#include <QUrl>

#include "commands/startup.h"
#include "ui/changes_dialog.h"
#include "ui/text_codec.h"

namespace zentrel::ui {

bool QtPlatform::ShowOpen(state::FileDialog& dialog) {
  return cCommonDialog(owner_).ShowOpen(dialog);
}

bool QtPlatform::ShowSave(state::FileDialog& dialog) {
  return cCommonDialog(owner_).ShowSave(dialog);
}

bool QtPlatform::AskYesNo(const std::string& title, const std::string& text) {
  QMessageBox box(QMessageBox::Question, QString::fromLocal8Bit(title),
                  QString::fromLocal8Bit(text), QMessageBox::Yes | QMessageBox::No, owner_);
  box.setDefaultButton(QMessageBox::Yes);
  return box.exec() == QMessageBox::Yes;
}

bool QtPlatform::ConfirmChanges(const std::string& diffText,
                                const std::vector<std::string>& vanishingTags) {
  return Confirm_Changes(owner_, diffText, vanishingTags);
}

void QtPlatform::ShowMessage(const std::string& text) {
  QMessageBox box(QMessageBox::Information, QString::fromLatin1(commands::kProgramName),
                  QString::fromLocal8Bit(text), QMessageBox::Ok, owner_);
  box.exec();
}

void QtPlatform::ShowCritical(const std::string& text) {
  QMessageBox box(QMessageBox::Critical, QString::fromLatin1(commands::kProgramName),
                  QString::fromLocal8Bit(text), QMessageBox::Ok, owner_);
  box.exec();
}

void QtPlatform::BeginBusy() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
}

void QtPlatform::EndBusy() {
  QApplication::restoreOverrideCursor();
}

void QtPlatform::DoEvents() {
  // The window repaints during long work; clicks and keys wait until the command is done, so
  // no second command starts inside the first.
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtPlatform::OpenDocument(const std::string& path) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(DecodePath(path)));
}

std::string QtPlatform::ExecutableFolder() {
  return EncodePath(QCoreApplication::applicationDirPath());
}

}  // namespace zentrel::ui

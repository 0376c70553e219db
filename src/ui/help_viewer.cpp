#include "ui/help_viewer.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QMessageBox>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace zentrel::ui {

void Show_Help_Page(QWidget* owner, const QString& path) {
  if (!QFileInfo(path).isReadable()) {
    QMessageBox::warning(owner, QStringLiteral("Zentrel"),
                         QStringLiteral("The help page %1 cannot be read.").arg(path));
    return;
  }
  auto* dialog = new QDialog(owner);
  dialog->setObjectName(QStringLiteral("HelpViewer"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowTitle(QStringLiteral("Zentrel Help"));
  auto* page = new QTextBrowser(dialog);
  page->setOpenExternalLinks(true);
  page->setSource(QUrl::fromLocalFile(path));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::close);
  auto* layout = new QVBoxLayout(dialog);
  layout->addWidget(page, 1);
  layout->addWidget(buttons);
  dialog->resize(760, 560);
  dialog->show();
}

}  // namespace zentrel::ui

#include "ui/changes_dialog.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextCursor>
#include <QVBoxLayout>

#include "ui/text_codec.h"

namespace zentrel::ui {

namespace {

// Removed lines red, added lines green, the vanishing-tag lines bold red.
void Colour_Lines(QPlainTextEdit& view) {
  for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next()) {
    const QString line = block.text();
    if (line.isEmpty() || line.startsWith(QLatin1String("@@")))
      continue;
    QTextCharFormat format;
    if (line.front() == u'-' || line.front() == u'!')
      format.setForeground(QColor(0xa0, 0x10, 0x10));
    else if (line.front() == u'+')
      format.setForeground(QColor(0x10, 0x70, 0x10));
    if (line.front() == u'!')
      format.setFontWeight(QFont::Bold);
    QTextCursor cursor(block);
    cursor.select(QTextCursor::BlockUnderCursor);
    cursor.mergeCharFormat(format);
  }
}

QString Heading(const std::vector<std::string>& vanishing, Codec codec) {
  if (vanishing.empty())
    return QObject::tr("Saving changes these lines of the page:");
  QStringList names;
  for (const std::string& tag : vanishing)
    names << Decode(tag, codec);
  return QObject::tr(
             "<b>These tags disappear from the page:</b> %1<br>Saving changes these "
             "lines of the page:")
      .arg(names.join(QLatin1String(", ")).toHtmlEscaped());
}

}  // namespace

bool Confirm_Changes(QWidget* owner, const std::string& diffText,
                     const std::vector<std::string>& vanishingTags) {
  // The save runs under the busy pointer; the question wants the normal one.
  QApplication::setOverrideCursor(Qt::ArrowCursor);
  const Codec codec = codec::DetectCodec(diffText);
  QDialog dialog(owner);
  dialog.setObjectName(QStringLiteral("ChangesDialog"));
  dialog.setWindowTitle(QObject::tr("Show changes before saving"));
  auto* heading = new QLabel(Heading(vanishingTags, codec), &dialog);
  heading->setWordWrap(true);
  auto* view = new QPlainTextEdit(Decode(diffText, codec), &dialog);
  view->setObjectName(QStringLiteral("ChangesDialog_Text"));
  view->setReadOnly(true);
  view->setLineWrapMode(QPlainTextEdit::NoWrap);
  view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  Colour_Lines(*view);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, &dialog);
  // A tag about to vanish makes Cancel the safe default.
  buttons->button(vanishingTags.empty() ? QDialogButtonBox::Save : QDialogButtonBox::Cancel)
      ->setDefault(true);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(heading);
  layout->addWidget(view, 1);
  layout->addWidget(buttons);
  dialog.resize(760, 420);
  const bool save = dialog.exec() == QDialog::Accepted;
  QApplication::restoreOverrideCursor();
  return save;
}

}  // namespace zentrel::ui

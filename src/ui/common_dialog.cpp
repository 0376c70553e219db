#include "ui/common_dialog.h"

#include <QFileDialog>
#include <QFileInfo>
#include <vector>

#include "ui/text_codec.h"

namespace zentrel::ui {

namespace {

struct FilterPair {
  QString description;
  QString pattern;
};

std::vector<FilterPair> Pairs(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split(QLatin1Char('|'));
  std::vector<FilterPair> pairs;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    if (parts[i].isEmpty() && parts[i + 1].isEmpty())
      continue;
    pairs.push_back({parts[i], parts[i + 1]});
  }
  return pairs;
}

}  // namespace

QStringList cCommonDialog::NameFilters(const std::string& filter) {
  QStringList names;
  for (const auto& [description, pattern] : Pairs(filter)) {
    QString patterns = pattern;
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    if (description.endsWith(QLatin1Char('(') + patterns + QLatin1Char(')')))
      names << description;
    else if (description.isEmpty())
      names << QLatin1Char('(') + patterns + QLatin1Char(')');
    else
      names << description + QStringLiteral(" (") + patterns + QLatin1Char(')');
  }
  return names;
}

std::string cCommonDialog::PatternExtension(const std::string& filter, int index) {
  const auto pairs = Pairs(filter);
  if (index < 1 || static_cast<std::size_t>(index) > pairs.size())
    return {};
  const QString first = pairs[static_cast<std::size_t>(index - 1)].pattern.section(';', 0, 0);
  if (!first.startsWith(QStringLiteral("*.")))
    return {};
  const QString ext = first.mid(1);
  if (ext.contains(QLatin1Char('*')) || ext.contains(QLatin1Char('?')))
    return {};
  return ext.toStdString();
}

bool cCommonDialog::ShowOpen(state::FileDialog& dialog) {
  return Show(dialog, false);
}

bool cCommonDialog::ShowSave(state::FileDialog& dialog) {
  return Show(dialog, true);
}

bool cCommonDialog::Show(state::FileDialog& dialog, bool save) {
  QStringList names = NameFilters(dialog.Filter);
  // Opening, the ".html" filter shows ".htm" pages as well; the list and its numbering stay.
  if (!save && !names.isEmpty() && names.first() == QStringLiteral("(*.html)"))
    names.first() = QStringLiteral("(*.html *.htm)");
  QFileDialog box(owner_, save ? QStringLiteral("Save As") : QStringLiteral("Open"));
  box.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  box.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (!names.isEmpty())
    box.setNameFilters(names);
  const int index =
      std::clamp<int>(dialog.FilterIndex, 1, std::max(1, static_cast<int>(names.size())));
  if (!names.isEmpty())
    box.selectNameFilter(names[index - 1]);
  auto suffixFor = [&](int filterIndex) {
    std::string ext = PatternExtension(dialog.Filter, filterIndex);
    if (ext.empty())
      ext = dialog.DefaultExt;
    return QString::fromStdString(ext).remove(0, ext.starts_with('.') ? 1 : 0);
  };
  box.setDefaultSuffix(suffixFor(index));
  QObject::connect(&box, &QFileDialog::filterSelected, &box, [&](const QString& name) {
    box.setDefaultSuffix(suffixFor(static_cast<int>(names.indexOf(name)) + 1));
  });
  if (!dialog.FileName.empty()) {
    const QFileInfo initial(DecodePath(dialog.FileName));
    box.setDirectory(initial.absolutePath());
    box.selectFile(initial.fileName());
  }
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty())
    return false;
  dialog.FileName = EncodePath(box.selectedFiles().first());
  const auto chosen = names.indexOf(box.selectedNameFilter());
  if (chosen >= 0) {
    dialog.FilterIndex = static_cast<int32_t>(chosen + 1);
    const std::string ext = PatternExtension(dialog.Filter, dialog.FilterIndex);
    if (!ext.empty())
      dialog.DefaultExt = ext;
  }
  return true;
}

}  // namespace zentrel::ui

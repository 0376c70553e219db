#pragma once
// cCommonDialog: the open-file and save-file dialogs over QFileDialog. The filter text is the
// program's "|"-separated description and pattern pairs; the filter index counts from 1.

#include <QStringList>
#include <string>

#include "state/platform.h"

class QWidget;

namespace zentrel::ui {

class cCommonDialog {
 public:
  explicit cCommonDialog(QWidget* owner) : owner_(owner) {}
  bool ShowOpen(state::FileDialog& dialog);
  bool ShowSave(state::FileDialog& dialog);

  // "(*.txt)|*.txt|(*.*)|*.*|" gives {"(*.txt)", "(*.*)"}; a description that does not name
  // its pattern gets it added ("Text|*.txt|" gives "Text (*.txt)").
  static QStringList NameFilters(const std::string& filter);
  // The extension a pattern stands for: "*.html" gives ".html"; wildcards give "".
  static std::string PatternExtension(const std::string& filter, int index);

 private:
  bool Show(state::FileDialog& dialog, bool save);
  QWidget* owner_;
};

}  // namespace zentrel::ui

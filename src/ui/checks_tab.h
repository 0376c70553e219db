#pragma once
// "Checks": the findings of the loaded page in a table (severity, rule, message, line), the
// severities shown, and a double click that shows a finding's tag on "Edit Page".

#include <QWidget>

#include "ui/controls.h"

namespace zentrel::ui {

class ChecksTab : public QWidget {
 public:
  ChecksTab(View& v, QWidget* parent);
};

}  // namespace zentrel::ui

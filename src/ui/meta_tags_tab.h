#pragma once
// "Edit Meta Tags": the thirteen META tag fields with their marks, the choice lists, the expiry
// date, and the buttons that act on all or on the marked fields.

#include <QWidget>

#include "ui/controls.h"

namespace zentrel::ui {

class MetaTagsTab : public QWidget {
 public:
  MetaTagsTab(View& v, QWidget* parent);
};

}  // namespace zentrel::ui

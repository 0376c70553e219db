#pragma once
// "Scan Keywords": loading and rescanning, the keyword and word matching options, the
// additional keywords, and the three result boxes.

#include <QWidget>

#include "ui/controls.h"

namespace zentrel::ui {

class ScanKeywordsTab : public QWidget {
 public:
  ScanKeywordsTab(View& v, QWidget* parent);
};

}  // namespace zentrel::ui

#pragma once
// "View Body" (the page's words or raw body) and "Page Report" (the plain-text report).

#include <QWidget>

#include "ui/controls.h"

namespace zentrel::ui {

class ViewBodyTab : public QWidget {
 public:
  ViewBodyTab(View& v, QWidget* parent);
};

class PageReportTab : public QWidget {
 public:
  PageReportTab(View& v, QWidget* parent);
};

}  // namespace zentrel::ui

#include "ui/main_window.h"

#include <QTabWidget>

namespace zentrel::ui {

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent), tabs_(new QTabWidget(this)) {
  setWindowTitle("   Zentrel V1.62");
  for (const char* caption :
       {"Scan Keywords", "Edit Meta Tags", "View Body", "Page Report", "Edit Page", "Prefs"}) {
    tabs_->addTab(new QWidget(tabs_), caption);
  }
  setCentralWidget(tabs_);
  resize(1000, 700);
}

}  // namespace zentrel::ui

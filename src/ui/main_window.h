#pragma once

#include <QMainWindow>

class QTabWidget;

namespace zentrel::ui {

class MainWindow : public QMainWindow {
 public:
  explicit MainWindow(QWidget* parent = nullptr);

 private:
  QTabWidget* tabs_;
};

}  // namespace zentrel::ui

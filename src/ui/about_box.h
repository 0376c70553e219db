#pragma once
// The about box and the start-up splash form.

#include <QDialog>

namespace zentrel::ui {

// One paragraph that says what the program is for.
QString ProgramDescription();

class frmAbout : public QDialog {
 public:
  explicit frmAbout(QWidget* parent);
};

class Frm_SplashScreen : public QDialog {
 public:
  explicit Frm_SplashScreen(QWidget* parent);
};

// Tests and the offscreen platform never show the splash form.
bool SplashWanted();

}  // namespace zentrel::ui

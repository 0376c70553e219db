#include <QApplication>
#include <QIcon>

#include "ui/about_box.h"
#include "ui/main_window.h"
#include "ui/qt_platform.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Zentrel"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/zentrel.png")));
  QApplication::setDesktopFileName(QStringLiteral("zentrel"));
  zentrel::ui::QtPlatform platform;
  zentrel::ui::MainWindow window(platform);
  platform.SetOwner(&window);
  window.show();
  if (zentrel::ui::SplashWanted())
    window.ShowSplash();
  return app.exec();
}

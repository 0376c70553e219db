#include <QApplication>
#include <QIcon>
#include <cstdio>
#include <cstring>

#include "commands/startup.h"
#include "ui/about_box.h"
#include "ui/main_window.h"
#include "ui/qt_platform.h"
#include "ui/text_codec.h"

// zentrel [PAGE]: PAGE is loaded once the window is up (the desktop entry passes the file);
// zentrel --version prints the name and version.
int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
    std::printf("%s %s\n", zentrel::commands::kProgramName, zentrel::commands::kProgramVersion);
    return 0;
  }
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Zentrel"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/zentrel.png")));
  QApplication::setDesktopFileName(QStringLiteral("zentrel"));
  zentrel::ui::QtPlatform platform;
  zentrel::ui::MainWindow window(platform);
  platform.SetOwner(&window);
  window.show();
  const QStringList args = QApplication::arguments();
  if (args.size() > 1)
    window.LoadDroppedFile(zentrel::ui::EncodePath(args.at(1)));
  else if (zentrel::ui::SplashWanted())
    window.ShowSplash();
  return app.exec();
}

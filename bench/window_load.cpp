// Measures the window on a big page: how long loading and analysing it keeps control, and how
// often the window repainted meanwhile (a timer asks for a repaint every 20 ms, as a moving
// mouse or an animation would). Usage: zentrel-window-load PAGE (QT_QPA_PLATFORM=offscreen).

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <cstdio>

#include "ui/main_window.h"
#include "ui/qt_platform.h"

namespace {

class PaintCounter : public QObject {
 public:
  int paints = 0;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint)
      ++paints;
    return QObject::eventFilter(watched, event);
  }
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: zentrel-window-load PAGE\n");
    return 2;
  }
  qputenv("ZENTREL_NO_SPLASH", "1");
  QApplication app(argc, argv);
  zentrel::ui::QtPlatform platform;
  zentrel::ui::MainWindow window(platform);
  platform.SetOwner(&window);
  window.show();
  QCoreApplication::processEvents();

  PaintCounter counter;
  window.installEventFilter(&counter);
  QTimer repaint;
  QObject::connect(&repaint, &QTimer::timeout, &window, [&window] { window.update(); });
  repaint.start(20);

  QElapsedTimer clock;
  clock.start();
  window.LoadDroppedFile(argv[1]);
  const qint64 ms = clock.elapsed();
  std::printf("load and analysis returned control after %lld ms; %d repaints meanwhile\n",
              static_cast<long long>(ms), counter.paints);
  return 0;
}

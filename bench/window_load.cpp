// Measures how long the window's event loop stays blocked on a big page. Inside the running
// event loop it loads the page, shows every tab in turn, types into a field, starts anew and
// loads the page again, one step at a time, while a 1 ms timer notes the longest gap between
// its ticks (the time nothing could repaint or answer a click). Prints one line per step and,
// last, "max blocked: N ms".
// Usage: zentrel-window-load PAGE (QT_QPA_PLATFORM=offscreen).

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "ui/main_window.h"
#include "ui/qt_platform.h"

namespace {

// Nobody at the screen: edits are discarded and saves go through without questions.
class ToolPlatform : public zentrel::ui::QtPlatform {
 public:
  zentrel::state::SaveChoice AskSaveChanges(const std::string&) override {
    return zentrel::state::SaveChoice::Discard;
  }
};

// The longest gap between the ticks of a 1 ms timer since the last Reset.
class BlockWatch {
 public:
  BlockWatch() {
    clock_.start();
    tick_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&tick_, &QTimer::timeout, &tick_, [this] {
      const qint64 now = clock_.elapsed();
      longest_ = std::max(longest_, now - last_);
      last_ = now;
    });
    tick_.start(1);
  }
  void Reset() {
    last_ = clock_.elapsed();
    longest_ = 0;
  }
  qint64 Longest() const { return longest_; }
  qint64 Now() const { return clock_.elapsed(); }

 private:
  QElapsedTimer clock_;
  QTimer tick_;
  qint64 last_ = 0;
  qint64 longest_ = 0;
};

struct Step {
  QString name;
  std::function<void()> action;
};

void Type_Into(QLineEdit* field) {
  field->setFocus();
  QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QCoreApplication::sendEvent(field, &press);
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QCoreApplication::sendEvent(field, &release);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: zentrel-window-load PAGE\n");
    return 2;
  }
  qputenv("ZENTREL_NO_SPLASH", "1");
  QApplication app(argc, argv);
  ToolPlatform platform;
  zentrel::ui::MainWindow window(platform);
  platform.SetOwner(&window);
  window.show();
  QCoreApplication::processEvents();
  auto* tabs = window.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
  auto* field = window.findChild<QLineEdit*>(QStringLiteral("MetaTag_TextBox_0"));
  if (tabs == nullptr || field == nullptr) {
    std::fprintf(stderr, "zentrel-window-load: the window has no tabs or no title field\n");
    return 1;
  }
  const std::string page = argv[1];
  const QRect screen = window.screen()->availableGeometry();
  std::printf("window %dx%d (at least %dx%d) on a screen of %dx%d\n", window.width(),
              window.height(), window.minimumSizeHint().width(), window.minimumSizeHint().height(),
              screen.width(), screen.height());

  // The first load with "View Body" in front, each tab, an edit, then "&New" and a load with
  // "Scan Keywords" in front (every text new again).
  auto load = [&window, page] { window.LoadDroppedFile(page); };
  std::vector<Step> steps;
  steps.push_back({QStringLiteral("load on \"View Body\""), [&] {
                     tabs->setCurrentIndex(2);
                     load();
                   }});
  for (int i = 0; i < tabs->count(); ++i) {
    steps.push_back({QStringLiteral("show \"%1\"").arg(tabs->tabText(i).remove(u'&')),
                     [tabs, i] { tabs->setCurrentIndex(i); }});
  }
  steps.push_back({QStringLiteral("type into \"Page Title\""), [&] {
                     tabs->setCurrentIndex(1);
                     Type_Into(field);
                   }});
  steps.push_back({QStringLiteral("New"), [&] { window.Run("Mnu_File_new"); }});
  steps.push_back({QStringLiteral("load on \"Scan Keywords\""), [&] {
                     tabs->setCurrentIndex(0);
                     load();
                   }});

  // Each step runs from the event loop, which then runs on for a while so that the work the
  // step leaves for later (a text shown when its tab appears, the repaint) counts too.
  constexpr int kSettleMs = 700;
  BlockWatch watch;
  qint64 worst = 0;
  std::size_t next = 0;
  std::function<void()> run = [&] {
    if (next == steps.size()) {
      std::printf("max blocked: %lld ms\n", static_cast<long long>(worst));
      QCoreApplication::quit();
      return;
    }
    const Step& step = steps[next++];
    watch.Reset();
    const qint64 start = watch.Now();
    step.action();
    const qint64 returned = watch.Now() - start;
    QTimer::singleShot(kSettleMs, [&, name = step.name, returned] {
      worst = std::max(worst, watch.Longest());
      std::printf("%-32s longest block %5lld ms (the step itself %lld ms)\n",
                  name.toUtf8().constData(), static_cast<long long>(watch.Longest()),
                  static_cast<long long>(returned));
      std::fflush(stdout);
      run();
    });
  };
  QTimer::singleShot(0, run);
  return QApplication::exec();
}

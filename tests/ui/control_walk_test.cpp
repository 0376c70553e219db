// Every button, check box, drop-down and menu entry of the real window, worked as the user
// works it, runs the handler that the control table has under the control's name; every
// name of the table has its control; a name without a handler is shown as a fault.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <algorithm>
#include <functional>
#include <set>

#include "commands/control_table.h"
#include "fake_platform.h"
#include "test_files.h"
#include "ui/controls.h"
#include "ui/main_window.h"
#include "ui_test_support.h"

namespace zentrel::ui {
namespace {

struct NamedControl {
  std::string name;
  const QObject* object;
  std::function<void()> use;
};

// The window's own controls: a tab bar's buttons and the names starting "qt_" are Qt's.
std::vector<NamedControl> Controls(const MainWindow& window) {
  std::vector<NamedControl> out;
  auto add = [&out](QObject* o, std::function<void()> use) {
    const QString name = o->objectName();
    if (!name.isEmpty() && !name.startsWith(QStringLiteral("qt_")) &&
        !qobject_cast<QTabBar*>(o->parent()))
      out.push_back({o->objectName().toStdString(), o, std::move(use)});
  };
  for (QAbstractButton* b : window.findChildren<QAbstractButton*>())
    add(b, [b] { b->click(); });
  for (QComboBox* c : window.findChildren<QComboBox*>())
    add(c, [c] { emit c->activated(0); });
  for (QAbstractItemView* t : window.findChildren<QAbstractItemView*>())
    add(t, [t] { emit t->doubleClicked(t->model()->index(0, 0)); });
  for (const QMenu* menu : window.menuBar()->findChildren<QMenu*>()) {
    for (QAction* a : menu->actions()) {
      if (!a->isSeparator())
        add(a, [a] { a->trigger(); });
    }
  }
  // "&Quit" closes the window: last.
  std::stable_partition(out.begin(), out.end(),
                        [](const NamedControl& c) { return c.name != "mnu_File_Quit"; });
  return out;
}

TEST(ControlWalk, EveryControlRunsTheHandlerOfItsName) {
  testing::App();
  testing::TempFolder folder;
  testing::CancellingPlatform platform(folder.path().string());
  MainWindow window(platform);
  window.show();
  std::set<std::string> handled;
  for (const commands::Control& c : commands::Control_Table())
    handled.insert(c.Name);

  std::set<std::string> seen;
  for (const NamedControl& c : Controls(window)) {
    SCOPED_TRACE(c.name);
    seen.insert(c.name);
    c.use();
    if (c.object->property(kFormOnly).toBool()) {
      // Read by the core when another control runs; it has no handler of its own.
      EXPECT_NE(window.LastRun(), c.name);
      EXPECT_EQ(handled.count(c.name), 0u);
    } else {
      EXPECT_EQ(window.LastRun(), c.name) << "working it runs nothing";
      EXPECT_EQ(handled.count(c.name), 1u) << "no handler of that name";
    }
  }
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(platform.criticals, std::vector<std::string>{});
  for (const std::string& name : handled)
    EXPECT_EQ(seen.count(name), 1u) << name << " has a handler but no control";
}

TEST(ControlWalk, ANameWithoutAHandlerIsShownAsAFault) {
  testing::App();
  testing::FakePlatform platform;
  MainWindow window(platform);
  window.Run("MetaTagFunctions_ClearAll");
  EXPECT_EQ(platform.criticals,
            std::vector<std::string>{"The control MetaTagFunctions_ClearAll has no handler."});
}

}  // namespace
}  // namespace zentrel::ui

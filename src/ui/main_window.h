#pragma once
// The main window: seven tabs, the "&File" and "&Help" menus, and the one path by which every
// click reaches the core (the user's edits go into the Form, the handler runs guarded, what
// changed comes back into the widgets).

#include <QMainWindow>
#include <functional>
#include <string>

#include "state/app_state.h"
#include "ui/controls.h"
#include "ui/form_binding.h"

class QMimeData;
class QTabWidget;

namespace zentrel::ui {

class EditPageTab;
class frmAbout;
class Frm_SplashScreen;

class MainWindow : public QMainWindow {
 public:
  explicit MainWindow(state::Platform& platform, QWidget* parent = nullptr);
  ~MainWindow() override;

  // Runs the named control's handler as a click on it does; a name the control table does not
  // know is a fault of the program, shown as one.
  void Run(const std::string& name);
  // The name of the control whose click (or pick) ran last.
  const std::string& LastRun() const { return lastRun_; }
  // Loads and analyses a page as "Load Page" does once the file is chosen (a dropped file).
  void LoadDroppedFile(const std::string& path);
  // What a drop on the window does: the first local file of the data is loaded.
  bool DropPage(const QMimeData& mime);
  void ShowAbout();
  void ShowSplash();
  // The page's codec (tests and screenshots look at it).
  Codec PageCodec() const { return bind_.PageCodec(); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void Sync(const std::function<void(AppState&)>& command);
  void BuildTabs();
  void BuildMenus();
  void PlaceWindow();

  AppState s_;
  FormBinding bind_;
  View view_;
  QTabWidget* tabs_ = nullptr;
  EditPageTab* editPage_ = nullptr;
  frmAbout* about_ = nullptr;
  Frm_SplashScreen* splash_ = nullptr;
  bool running_ = false;
  std::string lastRun_;
};

}  // namespace zentrel::ui

#include "ui/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScreen>
#include <QStatusBar>
#include <QTabWidget>
#include <QUrl>
#include <QtGlobal>
#include <algorithm>
#include <utility>

#include "commands/control_table.h"
#include "commands/page_loading.h"
#include "commands/startup.h"
#include "commands/unsaved_edits.h"
#include "commands/view_body_report.h"
#include "ui/about_box.h"
#include "ui/checks_tab.h"
#include "ui/edit_page_tab.h"
#include "ui/meta_tags_tab.h"
#include "ui/prefs_tab.h"
#include "ui/report_tabs.h"
#include "ui/scan_keywords_tab.h"

namespace zentrel::ui {

MainWindow::MainWindow(state::Platform& platform, QWidget* parent)
    : QMainWindow(parent),
      s_(platform),
      bind_(s_),
      view_{s_, bind_, [this](const std::string& name) { Run(name); }} {
  setObjectName(QStringLiteral("MainWindow"));
  setAcceptDrops(true);
  BuildTabs();
  BuildMenus();
  bind_.CodecSource(&s_.Form.Html_Document_Editor);
  bind_.OnUserChange([this] { Sync({}); });
  PlaceWindow();
}

MainWindow::~MainWindow() = default;

void MainWindow::BuildTabs() {
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName(QStringLiteral("SSTab1"));
  // Alt and the underlined letter bring a tab to the front.
  tabs_->addTab(new ScanKeywordsTab(view_, tabs_), QStringLiteral("&Scan Keywords"));
  tabs_->addTab(new MetaTagsTab(view_, tabs_), QStringLiteral("Edit &Meta Tags"));
  tabs_->addTab(new ViewBodyTab(view_, tabs_), QStringLiteral("&View Body"));
  tabs_->addTab(new PageReportTab(view_, tabs_), QStringLiteral("Page &Report"));
  tabs_->addTab(new ChecksTab(view_, tabs_), QStringLiteral("&Checks"));
  editPage_ = new EditPageTab(view_, tabs_);
  tabs_->addTab(editPage_, QStringLiteral("&Edit Page"));
  tabs_->addTab(new PrefsTab(view_, tabs_), QStringLiteral("&Prefs"));
  bind_.Tabs(tabs_, &s_.Form.SelectedTab);
  connect(tabs_, &QTabWidget::currentChanged, this, [this] { Sync({}); });
  bind_.WindowTitle(this, &s_.Form.Caption, &s_.Form.PageModified);
  bind_.StatusBar(statusBar(), &s_.Form.StatusBar_Text);
  setCentralWidget(tabs_);
  // Typing in the page source marks the window at once; the next command tells exactly.
  auto* source = findChild<QPlainTextEdit*>(QStringLiteral("Html_Document_Editor"));
  connect(source, &QPlainTextEdit::textChanged, this, [this] { setWindowModified(true); });
}

void MainWindow::BuildMenus() {
  state::FormModel& f = s_.Form;
  auto command = [this](QMenu* menu, const char* name, const QString& caption) {
    QAction* a = menu->addAction(caption);
    a->setObjectName(QString::fromLatin1(name));
    connect(a, &QAction::triggered, this, [this, n = std::string(name)] { Run(n); });
    return a;
  };
  QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
  file->setObjectName(QStringLiteral("mnu_File"));
  command(file, "Mnu_File_new", QStringLiteral("&New"))->setShortcut(QKeySequence::New);
  command(file, "mnu_file_Load", QStringLiteral("&Load Page"))->setShortcut(QKeySequence::Open);
  file->addSeparator();
  command(file, "mnu_File_SAVE", QStringLiteral("&Save Page"));
  command(file, "mnu_File_SAVESA", QStringLiteral("&Save Page As"))
      ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
  QAction* slash = file->addSeparator();
  slash->setObjectName(QStringLiteral("mnu_file_QuickLoadSlash"));
  bind_.Menu(slash, &f.mnu_file_QuickLoadSlash);
  for (std::size_t i = 0; i < f.mnu_file_QuickLoadFile.size(); ++i) {
    const std::string name = "mnu_file_QuickLoadFile" + std::to_string(i + 1);
    QAction* recent = command(file, name.c_str(), QString());
    bind_.Menu(recent, &f.mnu_file_QuickLoadFile[i], true);
  }
  file->addSeparator();
  command(file, "mnu_File_Quit", QStringLiteral("&Quit"))
      ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));

  QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
  help->setObjectName(QStringLiteral("mnu_Help"));
  command(help, "mnu_Help_Docs", QStringLiteral("Docs"));
  command(help, "mnu_Help_About", QStringLiteral("About"));

  // Keys without a menu entry of their own.
  auto key = [this](const char* name, const QKeySequence& keys, std::function<void()> slot) {
    auto* a = new QAction(this);
    a->setObjectName(QString::fromLatin1(name));
    a->setShortcut(keys);
    connect(a, &QAction::triggered, this, std::move(slot));
    addAction(a);
  };
  key("Shortcut_Rescan", QKeySequence(Qt::Key_F5), [this] { Run("Command2"); });
  key("Shortcut_Rebuild", QKeySequence(Qt::CTRL | Qt::Key_R),
      [this] { Run("MetaTagFunctions_ReThreadDocument"); });
  key("Shortcut_SaveOver", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
      [this] { Run("Picture2"); });
  key("Shortcut_SaveReport", QKeySequence(Qt::CTRL | Qt::Key_E),
      [this] { Run("PageReport_SAVEAS"); });
  key("Shortcut_Find", QKeySequence::Find, [this] {
    tabs_->setCurrentWidget(editPage_);
    editPage_->SearchBox()->setFocus();
    editPage_->SearchBox()->selectAll();
  });
  key("Shortcut_FindNext", QKeySequence(Qt::Key_F3), [this] {
    tabs_->setCurrentWidget(editPage_);
    Run("Html_Document_Editor_DOFindNext");
  });
}

void MainWindow::PlaceWindow() {
  state::FormModel& f = s_.Form;
  QRect screen(0, 0, 1024, 768);
  if (const QScreen* primary = QGuiApplication::primaryScreen())
    screen = primary->availableGeometry();
  f.ScreenWidth = screen.width();
  f.ScreenHeight = screen.height();
  f.Width = std::min(1120.0, screen.width() * 0.94);
  f.Height = std::min(780.0, screen.height() * 0.92);
  resize(static_cast<int>(f.Width), static_cast<int>(f.Height));
  Sync(commands::Form_Load);
  move(screen.x() + static_cast<int>(f.Left), screen.y() + static_cast<int>(f.Top));
}

void MainWindow::Sync(const std::function<void(AppState&)>& command) {
  // Modal questions run their own event loop; a command never starts inside another.
  if (running_)
    return;
  running_ = true;
  commands::Run_Guarded(s_, [this](AppState&) { bind_.Pull(); });
  if (command)
    commands::Run_Guarded(s_, command);
  commands::Update_Modified_Flag(s_);
  commands::Run_Guarded(s_, commands::Show_Selected_Tab);
  bind_.Push();
  running_ = false;
  if (std::exchange(s_.Form.AboutBoxRequested, false))
    ShowAbout();
  if (s_.Form.ProgramHasEnded)
    close();
}

void MainWindow::Run(const std::string& name) {
  lastRun_ = name;
  Sync([&name](AppState& s) {
    if (commands::Dispatch(s, name))
      return;
    const std::string message = "The control " + name + " has no handler.";
    qCritical("%s", message.c_str());
    s.platform->ShowCritical(message);
  });
}

void MainWindow::LoadDroppedFile(const std::string& path) {
  Sync([&path](AppState& s) { commands::Load_Chosen_Page(s, path); });
}

void MainWindow::ShowAbout() {
  if (!about_)
    about_ = new frmAbout(this);
  about_->show();
  about_->raise();
}

void MainWindow::ShowSplash() {
  if (!splash_)
    splash_ = new Frm_SplashScreen(this);
  splash_->show();
  splash_->raise();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (running_) {
    event->ignore();
    return;
  }
  if (!s_.Form.ProgramHasEnded) {
    bool settled = false;
    commands::Run_Guarded(s_, [this, &settled](AppState& s) {
      bind_.Pull();
      settled = commands::Settle_Unsaved_Edits(s);
      if (settled)
        commands::ProgramEnded(s);
    });
    if (!settled) {
      bind_.Push();
      event->ignore();
      return;
    }
  }
  if (about_)
    about_->close();
  if (splash_)
    splash_->close();
  event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  const QMimeData* mime = event->mimeData();
  if (mime->hasUrls() && !mime->urls().isEmpty() && mime->urls().first().isLocalFile())
    event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  if (DropPage(*event->mimeData()))
    event->acceptProposedAction();
}

bool MainWindow::DropPage(const QMimeData& mime) {
  const QList<QUrl> urls = mime.urls();
  if (urls.isEmpty() || !urls.first().isLocalFile())
    return false;
  LoadDroppedFile(EncodePath(urls.first().toLocalFile()));
  return true;
}

}  // namespace zentrel::ui

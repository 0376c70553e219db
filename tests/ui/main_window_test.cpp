// The window over the core, on the offscreen platform with the scripted Platform: the start-up
// state, and a load, an edit, a rebuild, a search, a failing page and the recent-file menu
// through the real widgets.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTextCursor>
#include <QUrl>
#include <filesystem>
#include <memory>

#include "fake_platform.h"
#include "shell_program_folder.h"
#include "state/settings.h"
#include "test_files.h"
#include "ui/main_window.h"
#include "ui/text_codec.h"
#include "ui_test_support.h"

namespace zentrel::ui {

namespace fs = std::filesystem;
using zentrel::testing::Find;
using zentrel::testing::ReadFile;
using zentrel::testing::ReadTestData;
using zentrel::testing::WriteFile;

namespace {

std::string Page(const std::string& title, const std::string& body) {
  return "<html><head><title>" + title +
         "</title><meta name=\"keywords\" content=\"alpha, beta\"></head><body>" + body +
         "</body></html>";
}

}  // namespace

class MainWindowTest : public ::testing::Test {
 protected:
  MainWindowTest() {
    zentrel::testing::App();
    window = std::make_unique<MainWindow>(platform);
    window->show();
  }

  template <class T = QWidget>
  T* W(const std::string& name) {
    return Find<T>(window.get(), name);
  }
  void Click(const std::string& name) { W<QAbstractButton>(name)->click(); }
  void Trigger(const std::string& name) { Find<QAction>(window.get(), name)->trigger(); }
  // Brings the tab holding the control to the front, as the user does to look at it (a text
  // area behind another tab gets its text when it is shown).
  template <class T = QWidget>
  T* Front(const std::string& name) {
    T* w = W<T>(name);
    auto* tabs = W<QTabWidget>("SSTab1");
    for (int i = 0; i < tabs->count(); ++i) {
      if (tabs->widget(i)->isAncestorOf(w))
        tabs->setCurrentIndex(i);
    }
    return w;
  }
  QString Text(const std::string& name) { return Front<QPlainTextEdit>(name)->toPlainText(); }
  std::string Save(const std::string& name, const std::string& bytes) {
    WriteFile(folder.File(name), bytes);
    return folder.File(name);
  }
  void Load(const std::string& path) {
    platform.AnswerOpen(path);
    Click("Command1");
  }

  // The program folder is a scratch copy, so the preferences file lands there.
  zentrel::testing::ShellProgramFolder folder;
  zentrel::testing::FakePlatform platform{folder.Path()};
  std::unique_ptr<MainWindow> window;
};

// After start-up the check boxes show the settings' defaults, the lists their first picks.
TEST_F(MainWindowTest, StartsWithTheDefaultsShown) {
  EXPECT_EQ(window->windowTitle(), QStringLiteral("   Zentrel V1.62"));
  std::string marks;
  for (const state::Setting& row : state::Settings()) {
    if (row.CheckBox)
      marks += W<QAbstractButton>(std::string(row.Control))->isChecked() ? '1' : '0';
  }
  EXPECT_EQ(marks, "0111110111100100");
  EXPECT_EQ(W<QLineEdit>("HtmlDecodePref_WordDecodeStopCHR_TextBox")->text(),
            QString::fromLatin1(state::kDefaultWordDelimiters));
  EXPECT_EQ(W<QComboBox>("PageMetaTags_Robots_DropDown")->currentText(), QStringLiteral("Select"));
  EXPECT_EQ(W<QComboBox>("KeyWords_MinKeyWordMatches_DropDown")->currentText(),
            QStringLiteral(" 1 Match"));
  EXPECT_EQ(W<QPlainTextEdit>("ReportTextBox")->font().styleHint(), QFont::TypeWriter);
  EXPECT_FALSE(Find<QAction>(window.get(), "mnu_file_QuickLoadFile1")->isVisible());
}

// A UTF-8 page: the report, the result boxes and the fields show its accented letters; an
// edited field reaches the page on a rebuild, and saving keeps the page's other bytes.
TEST_F(MainWindowTest, LoadEditRebuildAndSaveAUtf8Page) {
  const std::string original = ReadTestData("ui_sample_page.html");
  const std::string path = Save("shoes.html", original);
  Load(path);
  EXPECT_EQ(window->PageCodec(), Codec::Utf8);
  EXPECT_EQ(window->windowTitle(), QString::fromStdString(path) + "   Zentrel V1.62");
  EXPECT_TRUE(Text("ReportTextBox").contains(QStringLiteral("Title: Caf\u00E9 Shoes and Boots")));
  EXPECT_TRUE(Text("ScanKeyWords_KeyWordDensity_TextBox").contains(QStringLiteral("% - boots")));
  EXPECT_EQ(W<QLineEdit>("MetaTag_TextBox_6")->text(), QStringLiteral("Zo\u00EB Bront\u00EB"));
  EXPECT_EQ(W<QLineEdit>("MetaTag_TextBox_6")->toolTip(),
            QStringLiteral("This Field is 12 Characters Long"));

  auto* author = W<QLineEdit>("MetaTag_TextBox_6");
  author->setFocus();
  author->selectAll();
  zentrel::testing::Type(author, QStringLiteral("J\u00FCrgen"));
  EXPECT_EQ(author->toolTip(), QStringLiteral("This Field is 7 Characters Long"));

  Click("MetaTagFunctions_ReThreadDocument");
  const QString page = Text("Html_Document_Editor");
  EXPECT_TRUE(page.contains(QStringLiteral("<META content=\"J\u00FCrgen\" name=\"author\">")));
  EXPECT_FALSE(page.contains(QStringLiteral("Zo\u00EB")));

  // Saving over the loaded file writes the page's own UTF-8 and CR LF bytes.
  Click("Picture2");
  const std::string saved = ReadFile(path);
  EXPECT_NE(saved.find("<META content=\"J\xC3\xBCrgen\" name=\"author\">\r\n"), std::string::npos);
  EXPECT_NE(saved.find(original.substr(original.find("<body>"))), std::string::npos);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(MainWindowTest, SearchSelectsEachMatchInThePageSource) {
  Load(Save("shoes.html", ReadTestData("ui_sample_page.html")));
  // The editor's tab is behind: its text and then the selection wait until it is shown.
  W<QLineEdit>("Html_Document_Editor_SearchText")->setText(QStringLiteral("title"));
  Click("Html_Document_Editor_Find");
  auto* editor = Front<QPlainTextEdit>("Html_Document_Editor");
  EXPECT_EQ(editor->textCursor().selectionStart(),
            editor->toPlainText().indexOf(QStringLiteral("title")));
  Click("Html_Document_Editor_DOFindNext");
  W<QTabWidget>("SSTab1")->setCurrentIndex(0);
  Click("Html_Document_Editor_DOFindNext");
  Front("Html_Document_Editor");
  // The third "title" stands after several accented letters and CR LF line ends.
  EXPECT_EQ(editor->textCursor().selectedText(), QStringLiteral("TITLE"));
  EXPECT_EQ(editor->textCursor().selectionStart(),
            editor->toPlainText().indexOf(QStringLiteral("TITLE")));
}

TEST_F(MainWindowTest, ADroppedPageLoadsAndTheRecentMenuReopensAnEntry) {
  Load(Save("a.htm", Page("Page A", "alpha")));
  QMimeData mime;
  mime.setUrls({QUrl::fromLocalFile(QString::fromStdString(Save("b.htm", Page("Page B", "b"))))});
  EXPECT_TRUE(window->DropPage(mime));
  auto* second = Find<QAction>(window.get(), "mnu_file_QuickLoadFile2");
  EXPECT_TRUE(second->isVisible());
  second->trigger();
  EXPECT_TRUE(Text("ReportTextBox").contains(QStringLiteral("Title: Page A")));
}

TEST_F(MainWindowTest, AWindows1252PageShowsAndSavesByteForByte) {
  const std::string body = "<body><p>caf\xE9 na\xEFve \x80 \x81\x8D\x8F\x90\x9D end</p></body>";
  const std::string path =
      Save("latin.htm", "<html><head><title>Cr\xE8me</title></head>\r\n" + body + "</html>");
  Load(path);
  EXPECT_EQ(window->PageCodec(), Codec::Windows1252);
  EXPECT_EQ(W<QLineEdit>("MetaTag_TextBox_0")->text(), QStringLiteral("Cr\u00E8me"));
  EXPECT_TRUE(Text("Html_Document_Editor").contains(QStringLiteral("caf\u00E9 na\u00EFve \u20AC")));
  Click("Picture2");
  const std::string saved = ReadFile(path);
  EXPECT_NE(saved.find("<TITLE>Cr\xE8me</TITLE>"), std::string::npos);
  EXPECT_NE(saved.find(body), std::string::npos);
}

TEST_F(MainWindowTest, HelpOpensTheDocsAndQuitEndsTheProgram) {
  Trigger("mnu_Help_Docs");
  EXPECT_EQ(platform.openedDocuments.at(0), folder.File("docs/index.htm"));
  Trigger("mnu_Help_About");
  EXPECT_TRUE(W<QDialog>("frmAbout")->isVisible());

  Trigger("mnu_File_Quit");
  EXPECT_FALSE(window->isVisible());
  EXPECT_FALSE(W<QDialog>("frmAbout")->isVisible());
  EXPECT_TRUE(fs::exists(folder.File("Zentrel_Pref.txt")));
}

TEST_F(MainWindowTest, ClosingTheWindowSavesTheSettingsShown) {
  W<QAbstractButton>("WordMatch_ForceCase")->click();
  EXPECT_TRUE(window->close());
  const std::string prefs = ReadFile(folder.File("Zentrel_Pref.txt"));
  EXPECT_NE(prefs.find("WordMatch_ForceSameCase: 1\r\n"), std::string::npos) << prefs;
}

}  // namespace zentrel::ui

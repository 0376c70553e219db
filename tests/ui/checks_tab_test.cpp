// The "Checks" tab and the length labels of "Edit Meta Tags" in the real window: the findings of
// a page whose analysis fails, the severity filter, the jump to the tag, and a title too wide.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>

#include "fake_platform.h"
#include "test_files.h"
#include "ui/length_label.h"
#include "ui/main_window.h"
#include "ui_test_support.h"

namespace zentrel::ui {
namespace {

using zentrel::testing::Find;

struct Window {
  Window() : platform(folder.path().string()), window(platform) {
    zentrel::testing::App();
    window.show();
  }
  // The rule ids of the table's rows, top to bottom.
  QStringList Rules() {
    const QAbstractItemModel* model = Find<QTableView>(&window, "Checks_Findings_Table")->model();
    QStringList rules;
    for (int row = 0; row < model->rowCount(); ++row)
      rules << model->index(row, 1).data().toString();
    return rules;
  }

  zentrel::testing::TempFolder folder;
  zentrel::testing::FakePlatform platform;
  MainWindow window;
};

TEST(ChecksTab, ListsFiltersAndJumpsToTheTagEvenWhenTheAnalysisFails) {
  Window w;
  std::string keywords;  // more than the keyword table holds: the analysis ends in an Overflow
  for (int i = 0; i < 2000; ++i)
    keywords += "k,";
  const std::string path = w.folder.File("page.html");
  zentrel::testing::WriteFile(path,
                              "<html>\n<head><title>Walking shoes in red and blue</title>\n"
                              "<meta name=\"keywords\" content=\"" +
                                  keywords +
                                  "\">\n</head>\n<body><h1>Shoes</h1>\n"
                                  "<p>Red <img src=\"red.png\"> and blue</p>\n</body></html>");
  w.platform.AnswerOpen(path);
  Find<QAbstractButton>(&w.window, "Command1")->click();
  ASSERT_EQ(w.platform.messages.size(), 1u);  // the Overflow

  const QStringList all = w.Rules();
  EXPECT_TRUE(all.contains(QStringLiteral("legacy-meta"))) << all.join(' ').toStdString();
  EXPECT_TRUE(all.contains(QStringLiteral("lang-missing")));
  EXPECT_EQ(all.indexOf(QStringLiteral("img-alt-missing")), all.size() - 1) << "page order";

  // Warnings off: the notices and errors stay, the count says how many are shown.
  Find<QAbstractButton>(&w.window, "Checks_ShowWarnings_CheckBox")->click();
  const QStringList shown = w.Rules();
  EXPECT_TRUE(shown.contains(QStringLiteral("legacy-meta")));
  EXPECT_FALSE(shown.contains(QStringLiteral("lang-missing")));
  EXPECT_FALSE(shown.contains(QStringLiteral("img-alt-missing")));
  EXPECT_TRUE(Find<QLabel>(&w.window, "Checks_Summary_Label")
                  ->text()
                  .endsWith(QString::number(shown.size()) + QStringLiteral(" shown")));
  Find<QAbstractButton>(&w.window, "Checks_ShowWarnings_CheckBox")->click();
  ASSERT_EQ(w.Rules(), all);

  // A double click on the image's finding selects its tag on "Edit Page".
  auto* table = Find<QTableView>(&w.window, "Checks_Findings_Table");
  auto* tabs = Find<QTabWidget>(&w.window, "SSTab1");
  tabs->setCurrentWidget(table->parentWidget());
  const QModelIndex image = table->model()->index(static_cast<int>(all.size()) - 1, 2);
  table->setCurrentIndex(image);
  emit table->doubleClicked(image);
  auto* editor = Find<QPlainTextEdit>(&w.window, "Html_Document_Editor");
  EXPECT_TRUE(tabs->currentWidget()->isAncestorOf(editor));
  EXPECT_EQ(editor->textCursor().selectedText(), QStringLiteral("<img src=\"red.png\">"));
}

TEST(LengthLabels, CountCharactersAndPixelsAndColourTheirLimits) {
  Window w;
  auto* title = Find<QLineEdit>(&w.window, "MetaTag_TextBox_0");
  auto* titleLength = Find<QLabel>(&w.window, "MetaTag_Length_Label_0");
  // 50 W at 20 px: 50 x 1933 font units of 2048 = 943.8 px, far past the 600 px of a result.
  zentrel::testing::Type(title, QString(50, QLatin1Char('W')));
  EXPECT_EQ(titleLength->text(), QStringLiteral("50 chars, 944 px"));
  EXPECT_EQ(titleLength->palette().color(QPalette::WindowText), kOverColour);

  title->clear();
  zentrel::testing::Type(title, QStringLiteral("Red shoes for walking"));
  EXPECT_TRUE(titleLength->text().startsWith(QStringLiteral("21 chars, ")));
  EXPECT_NE(titleLength->palette().color(QPalette::WindowText), kOverColour);
  EXPECT_NE(titleLength->palette().color(QPalette::WindowText), kUnderColour);

  // An entity counts as its one character; the description is short of its 50.
  auto* description = Find<QLineEdit>(&w.window, "MetaTag_TextBox_1");
  zentrel::testing::Type(description, QStringLiteral("Tom &amp; Jerry"));
  auto* descriptionLength = Find<QLabel>(&w.window, "MetaTag_Length_Label_1");
  EXPECT_TRUE(descriptionLength->text().startsWith(QStringLiteral("11 chars, ")));
  EXPECT_EQ(descriptionLength->palette().color(QPalette::WindowText), kUnderColour);
}

}  // namespace
}  // namespace zentrel::ui

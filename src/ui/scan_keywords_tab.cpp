#include "ui/scan_keywords_tab.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "commands/scan_keywords.h"
#include "commands/view_body_report.h"
#include "state/app_state.h"

namespace zentrel::ui {

namespace {

QWidget* ResultBox(View& v, QWidget* parent, const char* title, const char* name,
                   std::string* field) {
  auto* box = new QWidget(parent);
  auto* layout = new QVBoxLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(MakeLabel(box, QString::fromLatin1(title)));
  auto* text = MakeTextArea(v, box, name, field, true);
  text->setFont(FixedFont());
  // The style's sunken frame loses lines at fractional scale factors (1.5) beside these
  // boxes; a plain border of one logical pixel is drawn whole at every scale.
  text->setStyleSheet(QStringLiteral("QPlainTextEdit { border: 1px solid palette(mid); }"));
  layout->addWidget(text, 1);
  return box;
}

}  // namespace

ScanKeywordsTab::ScanKeywordsTab(View& v, QWidget* parent) : QWidget(parent) {
  state::FormModel& f = v.s.Form;
  auto* layout = new QVBoxLayout(this);

  auto* top = new QHBoxLayout;
  top->addWidget(MakeButton(v, this, "Command1", "Load Page"));
  top->addWidget(MakeButton(v, this, "Command2", "Rescan"));
  top->addSpacing(16);
  top->addWidget(MakeLabel(this, QStringLiteral("Additional Keywords")));
  auto* keywords = MakeLineEdit(v, this, "Users_METATAGS_TextBox", &f.Users_METATAGS_TextBox,
                                commands::Set_Users_METATAGS_TextBox);
  keywords->setPlaceholderText(QStringLiteral("more keywords, separated by commas"));
  top->addWidget(keywords, 1);
  top->addWidget(MakeButton(v, this, "Users_METATAGS_Clear_Command", "clear"));
  layout->addLayout(top);

  auto* options = new QHBoxLayout;
  auto* keywordBox = new QGroupBox(QStringLiteral("Keyword Options"), this);
  auto* k = new QGridLayout(keywordBox);
  k->addWidget(MakeCheck(v, keywordBox, "KeyWords_SortList", "Sort KeyWords", &f.KeyWords_SortList),
               0, 0);
  k->addWidget(MakeCheck(v, keywordBox, "KeyWords_RemoveDoubleKeyWordListings",
                         "Remove Duplicate Keywords", &f.KeyWords_RemoveDoubleKeyWordListings),
               1, 0);
  k->addWidget(MakeCheck(v, keywordBox, "KeyWords_ForceSameCaseMatching",
                         "Keywords Match Case Insensitive", &f.KeyWords_ForceSameCaseMatching),
               2, 0);
  k->addWidget(
      MakeCheck(v, keywordBox, "KeyWords_MatchScanType_CheckBOx",
                "Match KeyWords Against  Unique Words", &f.KeyWords_MatchScanType_CheckBOx),
      0, 1);
  k->addWidget(
      MakeCheck(v, keywordBox, "KeyWordMatch_Disable_Part_Keyword_Matches",
                "Disable Part KeyWord Matching", &f.KeyWordMatch_Disable_Part_Keyword_Matches),
      1, 1);
  auto* minimum = new QHBoxLayout;
  minimum->addWidget(MakeCheck(v, keywordBox, "KeyWords_MinKeyWordMatches_Option",
                               "Remove Keywords With Less Than",
                               &f.KeyWords_MinKeyWordMatches_Option));
  minimum->addWidget(MakeCombo(v, keywordBox, "KeyWords_MinKeyWordMatches_DropDown",
                               &f.KeyWords_MinKeyWordMatches_DropDown, 11));
  minimum->addStretch();
  // On a row of its own, so that the options stay narrow enough for a small or scaled screen.
  k->addLayout(minimum, 3, 0, 1, 2);
  options->addWidget(keywordBox, 2);

  auto* wordBox = new QGroupBox(QStringLiteral("Word Options"), this);
  auto* w = new QVBoxLayout(wordBox);
  w->addWidget(MakeCheck(v, wordBox, "WordMatch_ForceCase", "Word Match Case Insensitive",
                         &f.WordMatch_ForceCase));
  w->addWidget(MakeCheck(v, wordBox, "WordMatch_IgnoreAlphaNumericWords",
                         "Word Match Ingore Alpha Numeric", &f.WordMatch_IgnoreAlphaNumericWords));
  w->addStretch();
  options->addWidget(wordBox, 1);
  layout->addLayout(options);

  auto* results = new QHBoxLayout;
  results->addWidget(ResultBox(v, this, "KeyWord Matches", "ScanKeyWords_KeyWordMatches_TextBox",
                               &f.ScanKeyWords_KeyWordMatches_TextBox));
  results->addWidget(ResultBox(v, this, "KeyWord Density", "ScanKeyWords_KeyWordDensity_TextBox",
                               &f.ScanKeyWords_KeyWordDensity_TextBox));
  auto* bodyBox = ResultBox(v, this, "Body Word Count", "ScanKeyWords_DocumentWordCount_TextBox",
                            &f.ScanKeyWords_DocumentWordCount_TextBox);
  auto* counts = new QHBoxLayout;
  auto* unique = MakeLabel(bodyBox, QString(), "Body_Word_Count_Label");
  auto* total = MakeLabel(bodyBox, QString(), "Body_Word_Count_label2");
  v.bind.Label(unique, &f.Body_Word_Count_Label);
  v.bind.Label(total, &f.Body_Word_Count_label2);
  counts->addWidget(unique);
  counts->addWidget(total);
  counts->addStretch();
  static_cast<QVBoxLayout*>(bodyBox->layout())->addLayout(counts);
  results->addWidget(bodyBox);
  layout->addLayout(results, 1);
}

}  // namespace zentrel::ui

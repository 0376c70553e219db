#include "ui/prefs_tab.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "commands/prefs.h"
#include "state/app_state.h"

namespace zentrel::ui {

namespace {

QGroupBox* FilterDictionary(View& v, QWidget* parent) {
  state::FormModel& f = v.s.Form;
  auto* box = new QGroupBox(QStringLiteral("Filter Dictionary"), parent);
  box->setObjectName(QStringLiteral("Filter_Dictionary_Frame"));
  auto* layout = new QVBoxLayout(box);
  const QString hint =
      QStringLiteral("Enter your filter words within this text box, once your done, hit Resort");
  auto* hintLabel = MakeLabel(box, hint, "WordFiltersPage_Hint");
  hintLabel->setWordWrap(true);
  layout->addWidget(hintLabel);
  auto* words = MakeTextArea(v, box, "WordFiltersPage_WordDictionary",
                             &f.WordFiltersPage_WordDictionary, false);
  words->setPlaceholderText(hint);
  words->setToolTip(hint);
  layout->addWidget(words, 1);

  auto* buttons = new QGridLayout;
  buttons->addWidget(MakeButton(v, box, "EditWordFilters_ResortUpdateFilters", "Resort"), 0, 0);
  buttons->addWidget(MakeButton(v, box, "EditWordFilters_ClearDictionary", "Clear"), 0, 1);
  buttons->addWidget(MakeButton(v, box, "Command9", "Defaults"), 0, 2);
  buttons->addWidget(MakeButton(v, box, "EditWordFilters_MergeDictionary", "Merge"), 0, 3);
  buttons->addWidget(MakeButton(v, box, "EditWordFilters_LoadDictionary", "Load"), 1, 0);
  buttons->addWidget(MakeButton(v, box, "EditWordFilters_SAVE", "Save"), 1, 1);
  buttons->addWidget(MakeButton(v, box, "EditWordFilters_SAVEAS", "Save As"), 1, 2);
  layout->addLayout(buttons);

  auto* files = new QGridLayout;
  files->addWidget(MakeLabel(box, QStringLiteral("Current Dictionary")), 0, 0);
  auto* current = MakeLineEdit(v, box, "WordFiltersPage_CurrentWordDictionary_Text",
                               &f.WordFiltersPage_CurrentWordDictionary_Text, {}, TextKind::Path);
  current->setReadOnly(true);
  files->addWidget(current, 0, 1, 1, 3);
  files->addWidget(MakeLabel(box, QStringLiteral("Default Dictionary")), 1, 0);
  auto* chosen =
      MakeLineEdit(v, box, "WordFiltersPage_SelectDefaultWordDictionary_Text",
                   &f.WordFiltersPage_SelectDefaultWordDictionary_Text, {}, TextKind::Path);
  chosen->setReadOnly(true);
  files->addWidget(chosen, 1, 1, 1, 3);
  files->addWidget(
      MakeButton(v, box, "WordFiltersPage_SelectDefaultWordDictionary_Button", "Select Default"), 2,
      1);
  files->addWidget(
      MakeButton(v, box, "WordFiltersPage_ResetDefaultWordDictionary_Button", "Reset Default"), 2,
      2);
  files->setColumnStretch(3, 1);
  layout->addLayout(files);
  return box;
}

QGroupBox* DecoderPrefs(View& v, QWidget* parent) {
  state::FormModel& f = v.s.Form;
  auto* box = new QGroupBox(QStringLiteral("HTML Decoder Prefs"), parent);
  box->setObjectName(QStringLiteral("HtmlDecodePref_Frame"));
  auto* layout = new QVBoxLayout(box);
  layout->addWidget(MakeCheck(v, box, "HtmlDecodePref_IncludeTitleWithBody_CheckBox",
                              "Include Title With Body",
                              &f.HtmlDecodePref_IncludeTitleWithBody_CheckBox));
  layout->addWidget(MakeCheck(v, box, "HtmlDecodePref_IncludeALTTEXT_CheckBox",
                              "Include Alt Image Text ",
                              &f.HtmlDecodePref_IncludeALTTEXT_CheckBox));
  layout->addWidget(MakeCheck(v, box, "HtmlDecodePref_IncludeBODYTEXT_CheckBox", "Include BODY",
                              &f.HtmlDecodePref_IncludeBODYTEXT_CheckBox));
  layout->addWidget(MakeCheck(v, box, "HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox",
                              "Include Meta Description With Body",
                              &f.HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox));
  layout->addWidget(MakeLabel(box, QStringLiteral("Word Delimiters")));
  auto* row = new QHBoxLayout;
  auto* stops = MakeLineEdit(v, box, "HtmlDecodePref_WordDecodeStopCHR_TextBox",
                             &f.HtmlDecodePref_WordDecodeStopCHR_TextBox,
                             commands::Set_HtmlDecodePref_WordDecodeStopCHR_TextBox);
  stops->setFont(FixedFont());
  row->addWidget(stops, 1);
  row->addWidget(MakeButton(v, box, "HtmlDecodePref_WordDecodeStopCHR_Button", "Defaults"));
  layout->addLayout(row);
  return box;
}

QGroupBox* EncoderPrefs(View& v, QWidget* parent) {
  state::FormModel& f = v.s.Form;
  auto* box = new QGroupBox(QStringLiteral("HTML Encoder Prefs"), parent);
  box->setObjectName(QStringLiteral("MetaTagEncodePref_Frame"));
  auto* layout = new QVBoxLayout(box);
  layout->addWidget(MakeCheck(v, box, "MetaTagEncodePref_SwapContentAndNameOrder_CheckBox",
                              "Swap Content & Name Order",
                              &f.MetaTagEncodePref_SwapContentAndNameOrder_CheckBox));
  layout->addWidget(MakeCheck(v, box, "MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox",
                              "Seperate Keywords by Coma/Space",
                              &f.MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox));
  layout->addWidget(MakeCheck(v, box, "TagsOption_USE_META_TITLE", "Include Optional META TITLE",
                              &f.TagsOption_USE_META_TITLE));
  layout->addWidget(MakeCheck(v, box, "Check2", "Replace Known META TAGS", &f.Check2));
  return box;
}

QGroupBox* EnvironmentPrefs(View& v, QWidget* parent) {
  state::FormModel& f = v.s.Form;
  auto* box = new QGroupBox(QStringLiteral("Environment Prefs"), parent);
  box->setObjectName(QStringLiteral("Environment_Prefs_Frame"));
  auto* layout = new QVBoxLayout(box);
  auto* extension = new QHBoxLayout;
  extension->addWidget(MakeLabel(box, QStringLiteral("Default File Extension")));
  extension->addWidget(MakeCombo(v, box, "Defaults_Users_FileExtend_DropDown",
                                 &f.Defaults_Users_FileExtend_DropDown, 6));
  extension->addStretch();
  layout->addLayout(extension);
  layout->addWidget(MakeCheck(v, box, "SavePref_ShowChanges_CheckBox", "Show changes before saving",
                              &f.SavePref_ShowChanges_CheckBox));
  layout->addWidget(MakeCheck(v, box, "SavePref_KeepBackup_CheckBox",
                              "Keep the replaced page as a .bak file",
                              &f.SavePref_KeepBackup_CheckBox));
  return box;
}

}  // namespace

PrefsTab::PrefsTab(View& v, QWidget* parent) : QWidget(parent) {
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(FilterDictionary(v, this), 1);
  auto* right = new QVBoxLayout;
  right->addWidget(DecoderPrefs(v, this));
  right->addWidget(EncoderPrefs(v, this));
  right->addWidget(EnvironmentPrefs(v, this));
  right->addStretch();
  layout->addLayout(right, 1);
}

}  // namespace zentrel::ui

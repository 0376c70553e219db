#include "ui/meta_tags_tab.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>

#include "commands/edit_meta_tags.h"
#include "state/app_state.h"
#include "ui/length_label.h"

namespace zentrel::ui {

namespace {

constexpr std::array<const char*, state::kMetaTagFieldCount> kLabels = {
    "Page Title",    "Description",  "Abstract",  "Keywords", "Generator",
    "Program ID",    "Author",       "Copyright", "Rating",   "Robots",
    "Revisit After", "Distribution", "Expires"};

// Where the choice lists stand: beside the field they write; the expiry date goes below.
constexpr int kChoiceWidth = 16;  // "noindex,nofollow"
constexpr int kRating = 8, kRobots = 9, kRevisitAfter = 10, kDistribution = 11;

}  // namespace

MetaTagsTab::MetaTagsTab(View& v, QWidget* parent) : QWidget(parent) {
  state::FormModel& f = v.s.Form;
  auto* layout = new QHBoxLayout(this);

  auto* grid = new QGridLayout;
  grid->setColumnStretch(2, 1);
  for (int i = 0; i < state::kMetaTagFieldCount; ++i) {
    const auto index = static_cast<std::size_t>(i);
    const std::string suffix = "_" + std::to_string(i);
    auto* mark = MakeCheck(v, this, ("MetaTag_Selection_CheckBox" + suffix).c_str(), "",
                           &f.MetaTag_Selection_CheckBox[index], false);
    mark->setToolTip(QStringLiteral("Mark this field"));
    grid->addWidget(mark, i, 0);
    auto* label = MakeLabel(this, QString::fromLatin1(kLabels[index]));
    grid->addWidget(label, i, 1);
    auto* field = MakeLineEdit(v, this, "MetaTag_TextBox" + suffix, &f.MetaTag_TextBox[index],
                               [i](AppState& s, const std::string& text) {
                                 commands::Set_MetaTag_TextBox(s, static_cast<int16_t>(i), text);
                               });
    v.bind.ToolTip(field, &f.MetaTag_TextBox_ToolTip[index]);
    label->setBuddy(field);
    grid->addWidget(field, i, 2);
    if (i < 2)  // the title and the description
      grid->addWidget(MakeLengthLabel(v, this, index), i, 3);
  }
  grid->addWidget(MakeCombo(v, this, "PageMetaTags_Rating_DropDown",
                            &f.PageMetaTags_Rating_DropDown, kChoiceWidth),
                  kRating, 3, Qt::AlignLeft);
  grid->addWidget(MakeCombo(v, this, "PageMetaTags_Robots_DropDown",
                            &f.PageMetaTags_Robots_DropDown, kChoiceWidth),
                  kRobots, 3, Qt::AlignLeft);
  grid->addWidget(MakeCombo(v, this, "PageMetaTags_RevisitAfter_DropDown",
                            &f.PageMetaTags_RevisitAfter_DropDown, kChoiceWidth),
                  kRevisitAfter, 3, Qt::AlignLeft);
  grid->addWidget(MakeCombo(v, this, "PageMetaTags_Distribution_DropDown",
                            &f.PageMetaTags_Distribution_DropDown, kChoiceWidth),
                  kDistribution, 3, Qt::AlignLeft);
  // The date parts are read by "Set Date"; picking one runs nothing.
  auto* date = new QHBoxLayout;
  date->addWidget(
      MakeCombo(v, this, "PageMetaTags_Expires_Day", &f.PageMetaTags_Expires_Day, 3, false));
  date->addWidget(
      MakeCombo(v, this, "PageMetaTags_Expires_Month", &f.PageMetaTags_Expires_Month, 9, false));
  date->addWidget(
      MakeCombo(v, this, "PageMetaTags_Expires_Year", &f.PageMetaTags_Expires_Year, 5, false));
  date->addWidget(MakeButton(v, this, "PageMetaTags_Expires_SetDate", "Set Date"));
  date->addStretch();
  date->insertWidget(0, MakeLabel(this, QStringLiteral("Expiry date")));
  grid->addLayout(date, state::kMetaTagFieldCount, 2, 1, 2);
  auto* hint = MakeLabel(
      this, QStringLiteral("Tick the boxes on the left to mark fields; the buttons on the "
                           "right act on all fields or on the marked ones. Rebuild Page "
                           "writes the fields into the page on \"Edit Page\"; the save "
                           "button writes it over the loaded file."));
  hint->setWordWrap(true);
  hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  // The grid does not grow for a wrapped label; room for four lines keeps it whole.
  hint->setMinimumHeight(4 * hint->fontMetrics().lineSpacing());
  grid->addWidget(hint, state::kMetaTagFieldCount + 1, 1, 1, 3);
  grid->setRowStretch(state::kMetaTagFieldCount + 2, 1);
  layout->addLayout(grid, 1);

  auto* buttons = new QVBoxLayout;
  auto* rebuild = new QHBoxLayout;
  rebuild->addWidget(MakeButton(v, this, "MetaTagFunctions_ReThreadDocument", "Rebuild Page"), 1);
  auto* save = new QToolButton(this);
  save->setObjectName(QStringLiteral("Picture2"));
  save->setIcon(style()->standardIcon(QStyle::SP_DialogSaveButton));
  save->setToolTip(QStringLiteral("Save the page over the loaded file (Ctrl+Shift+S)"));
  connect(save, &QToolButton::clicked, save, [&v] { v.run("Picture2"); });
  rebuild->addWidget(save);
  buttons->addLayout(rebuild);
  buttons->addSpacing(12);
  for (auto [name, caption] : std::array<std::pair<const char*, const char*>, 8>{{
           {"MetaTagFunctions_MArk_ALL_Checkboxes", "Mark ALL"},
           {"MetaTagFunctions_UnMArk_ALL_Checkboxes", "UnMark ALL"},
           {"MetaTagFunctions_ClearALL", "Clear ALL"},
           {"MetaTagFunctions_ClearMarked", "Clear Marked"},
           {"MetaTagFunctions_CopyMarkedToClip", "Copy Marked To Clip"},
           {"MetaTagFunctions_PasteClipToMarked", "Paste Clip To Marked"},
           {"MetaTagFunctions_SaveMarked", "Save Marked"},
           {"MetaTagFunctions_LoadMarked", "Load  Marked"},
       }}) {
    buttons->addWidget(MakeButton(v, this, name, caption));
  }
  buttons->addStretch();
  layout->addLayout(buttons);
}

}  // namespace zentrel::ui

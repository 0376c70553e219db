#include "ui/edit_page_tab.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "state/app_state.h"

namespace zentrel::ui {

EditPageTab::EditPageTab(View& v, QWidget* parent) : QWidget(parent) {
  state::FormModel& f = v.s.Form;
  auto* layout = new QVBoxLayout(this);
  auto* top = new QHBoxLayout;
  top->addWidget(MakeLabel(this, QStringLiteral("Find")));
  search_ =
      MakeLineEdit(v, this, "Html_Document_Editor_SearchText", &f.Html_Document_Editor_SearchText);
  search_->setPlaceholderText(QStringLiteral("text to find in the page source"));
  connect(search_, &QLineEdit::returnPressed, search_,
          [&v] { v.run("Html_Document_Editor_DOFindNext"); });
  top->addWidget(search_, 1);
  // The search reads the box when it runs; ticking it runs nothing.
  top->addWidget(MakeCheck(v, this, "EditHtml_SearchCaseFlag", "Match Case",
                           &f.EditHtml_SearchCaseFlag, false));
  top->addWidget(MakeButton(v, this, "Html_Document_Editor_Find", "Find First"));
  top->addWidget(MakeButton(v, this, "Html_Document_Editor_DOFindNext", "Find Next"));
  layout->addLayout(top);

  auto* editor = MakeTextArea(v, this, "Html_Document_Editor", &f.Html_Document_Editor, false);
  editor->setFont(FixedFont());
  v.bind.Selection(editor, &f.Html_Document_Editor, &f.Html_Document_Editor_SelStart,
                   &f.Html_Document_Editor_SelLength);
  layout->addWidget(editor, 1);
}

}  // namespace zentrel::ui

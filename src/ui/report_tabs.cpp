#include "ui/report_tabs.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "state/app_state.h"

namespace zentrel::ui {

ViewBodyTab::ViewBodyTab(View& v, QWidget* parent) : QWidget(parent) {
  state::FormModel& f = v.s.Form;
  auto* layout = new QVBoxLayout(this);
  auto* top = new QHBoxLayout;
  top->addWidget(MakeButton(v, this, "ViewBody_SaveAs", "Save Body As"));
  top->addWidget(MakeCheck(v, this, "ViewBody_ShowRAWBODY_CHeckBox", "Show Raw Body",
                           &f.ViewBody_ShowRAWBODY_CHeckBox));
  top->addStretch();
  layout->addLayout(top);
  // The body's words are one long paragraph, shown read-only in blocks that are laid out as
  // they come into sight ("Save Body As" writes the words as they are).
  auto* body =
      MakeTextArea(v, this, "ScanKeyWords_StrippedHTMLDocument_TextBox",
                   &f.ScanKeyWords_StrippedHTMLDocument_TextBox, true, FormBinding::Layout::Blocks);
  body->setLineWrapMode(QPlainTextEdit::WidgetWidth);
  // A scroll bar that appears only once the text is in would lay the text out twice.
  body->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  layout->addWidget(body, 1);
}

PageReportTab::PageReportTab(View& v, QWidget* parent) : QWidget(parent) {
  state::FormModel& f = v.s.Form;
  auto* layout = new QVBoxLayout(this);
  auto* top = new QHBoxLayout;
  top->addWidget(MakeButton(v, this, "PageReport_SAVEAS", "Save Report As"));
  top->addWidget(MakeCheck(v, this, "PageReport_Export_WordCount_CheckBox", "Include Word Count",
                           &f.PageReport_Export_WordCount_CheckBox));
  top->addStretch();
  layout->addLayout(top);
  auto* report = MakeTextArea(v, this, "ReportTextBox", &f.ReportTextBox, false);
  report->setFont(FixedFont());
  layout->addWidget(report, 1);
}

}  // namespace zentrel::ui

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
  auto* body = MakeTextArea(v, this, "ScanKeyWords_StrippedHTMLDocument_TextBox",
                            &f.ScanKeyWords_StrippedHTMLDocument_TextBox, false);
  body->setLineWrapMode(QPlainTextEdit::WidgetWidth);
  // The body is one long paragraph, laid out whole at the box's width: a scroll bar that
  // appears only once the text is in would narrow the box and lay a long body out twice.
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

#include "ui/checks_tab.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QStyle>
#include <QTableView>
#include <QVBoxLayout>
#include <array>
#include <tuple>
#include <vector>

#include "state/app_state.h"

namespace zentrel::ui {

namespace {

enum Column { kSeverity, kRule, kMessage, kLine, kColumnCount };

QIcon SeverityIcon(const std::string& severity) {
  const QStyle::StandardPixmap pixmap = severity == "error"     ? QStyle::SP_MessageBoxCritical
                                        : severity == "warning" ? QStyle::SP_MessageBoxWarning
                                                                : QStyle::SP_MessageBoxInformation;
  return QApplication::style()->standardIcon(pixmap);
}

// The findings the Form holds, as the table shows them. A copy, so the table can compare what
// it shows with what the core left and reset only when the findings changed.
class FindingsModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Show(const std::vector<state::CheckFinding>& rows) {
    if (rows == rows_)
      return;
    beginResetModel();
    rows_ = rows;
    endResetModel();
  }

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
  }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : kColumnCount;
  }

  QVariant data(const QModelIndex& index, int role) const override {
    const state::CheckFinding& row = rows_[static_cast<size_t>(index.row())];
    if (role == Qt::DecorationRole && index.column() == kSeverity)
      return SeverityIcon(row.Severity);
    if (role == Qt::TextAlignmentRole && index.column() == kLine)
      return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole && index.column() == kMessage)
      return QString::fromStdString(row.Message);
    if (role != Qt::DisplayRole)
      return {};
    switch (index.column()) {
      case kSeverity:
        return QString::fromStdString(row.Severity);
      case kRule:
        return QString::fromStdString(row.Rule);
      case kMessage:
        return QString::fromStdString(row.Message);
      default:
        return QString::number(row.Line);
    }
  }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    static const std::array<QString, kColumnCount> kTitles = {
        QStringLiteral("Severity"), QStringLiteral("Rule"), QStringLiteral("Message"),
        QStringLiteral("Line")};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
      return {};
    return kTitles[static_cast<size_t>(section)];
  }

 private:
  std::vector<state::CheckFinding> rows_;
};

QTableView* MakeTable(View& v, QWidget* parent) {
  state::FormModel& f = v.s.Form;
  auto* table = new QTableView(parent);
  table->setObjectName(QStringLiteral("Checks_Findings_Table"));
  auto* model = new FindingsModel(table);
  table->setModel(model);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setWordWrap(false);
  table->verticalHeader()->hide();
  // Fixed row heights and column widths: a page with thousands of findings is shown at once.
  table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table->horizontalHeader()->setSectionResizeMode(kMessage, QHeaderView::Stretch);
  table->setColumnWidth(kSeverity, 96);
  table->setColumnWidth(kRule, 190);
  table->setColumnWidth(kLine, 64);
  v.bind.Custom(
      [table, &f] {
        const QModelIndex current = table->currentIndex();
        f.Checks_Findings_Table_Row = current.isValid() ? current.row() : -1;
      },
      [model, &f] { model->Show(f.Checks_Findings_Table); });
  QObject::connect(table, &QTableView::doubleClicked, table,
                   [&v] { v.run("Checks_Findings_Table"); });
  return table;
}

}  // namespace

ChecksTab::ChecksTab(View& v, QWidget* parent) : QWidget(parent) {
  state::FormModel& f = v.s.Form;
  auto* layout = new QVBoxLayout(this);
  auto* top = new QHBoxLayout;
  top->addWidget(MakeLabel(this, QStringLiteral("Show")));
  for (auto [name, caption, field, severity] :
       std::array<std::tuple<const char*, const char*, int16_t*, const char*>, 3>{{
           {"Checks_ShowErrors_CheckBox", "Errors", &f.Checks_ShowErrors_CheckBox, "error"},
           {"Checks_ShowWarnings_CheckBox", "Warnings", &f.Checks_ShowWarnings_CheckBox, "warning"},
           {"Checks_ShowNotices_CheckBox", "Notices", &f.Checks_ShowNotices_CheckBox, "notice"},
       }}) {
    QCheckBox* box = MakeCheck(v, this, name, caption, field);
    box->setIcon(SeverityIcon(severity));
    top->addWidget(box);
  }
  top->addStretch();
  layout->addLayout(top);
  auto* summary = MakeLabel(this, QString(), "Checks_Summary_Label");
  summary->setWordWrap(true);
  v.bind.Label(summary, &f.Checks_Summary_Label);
  layout->addWidget(summary);
  layout->addWidget(MakeTable(v, this), 1);
  auto* hint = MakeLabel(this, QStringLiteral("Double-click a finding to select its tag on "
                                              "\"Edit Page\". The rules and limits come from "
                                              "profile/Zentrel_Checks.txt in the program "
                                              "folder; Rescan (F5) checks the page again."));
  hint->setWordWrap(true);
  layout->addWidget(hint);
}

}  // namespace zentrel::ui

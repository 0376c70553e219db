#include "ui/controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace zentrel::ui {

QString Caption(const char* text) {
  return QString::fromLatin1(text).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QPushButton* MakeButton(View& v, QWidget* parent, const char* name, const char* caption) {
  auto* w = new QPushButton(Caption(caption), parent);
  w->setObjectName(QString::fromLatin1(name));
  QObject::connect(w, &QPushButton::clicked, w, [&v, n = std::string(name)] { v.run(n); });
  return w;
}

QCheckBox* MakeCheck(View& v, QWidget* parent, const char* name, const char* caption,
                     int16_t* field, bool dispatch) {
  auto* w = new QCheckBox(Caption(caption), parent);
  w->setObjectName(QString::fromLatin1(name));
  v.bind.CheckBox(w, field);
  if (dispatch)
    QObject::connect(w, &QCheckBox::clicked, w, [&v, n = std::string(name)] { v.run(n); });
  else
    w->setProperty(kFormOnly, true);
  return w;
}

QComboBox* MakeCombo(View& v, QWidget* parent, const char* name, state::DropDown* field, int chars,
                     bool dispatch) {
  auto* w = new QComboBox(parent);
  w->setObjectName(QString::fromLatin1(name));
  // The list shows texts that are not among its entries ("Select"), so it is editable; typing
  // never adds an entry.
  w->setEditable(true);
  w->setInsertPolicy(QComboBox::NoInsert);
  w->setMaxVisibleItems(16);
  w->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  w->setMinimumContentsLength(chars);
  w->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  v.bind.ComboBox(w, field);
  if (dispatch)
    QObject::connect(w, &QComboBox::activated, w, [&v, n = std::string(name)] { v.run(n); });
  else
    w->setProperty(kFormOnly, true);
  return w;
}

QLineEdit* MakeLineEdit(View& v, QWidget* parent, const std::string& name, std::string* field,
                        FormBinding::Setter setter, TextKind kind) {
  auto* w = new QLineEdit(parent);
  w->setObjectName(QString::fromStdString(name));
  v.bind.LineEdit(w, field, std::move(setter), kind);
  return w;
}

QPlainTextEdit* MakeTextArea(View& v, QWidget* parent, const char* name, std::string* field,
                             bool readOnly, FormBinding::Layout layout) {
  auto* w = new QPlainTextEdit(parent);
  w->setObjectName(QString::fromLatin1(name));
  w->setReadOnly(readOnly);
  w->setLineWrapMode(QPlainTextEdit::NoWrap);
  v.bind.TextArea(w, field, layout);
  return w;
}

QLabel* MakeLabel(QWidget* parent, const QString& text, const char* name) {
  auto* w = new QLabel(text, parent);
  if (name)
    w->setObjectName(QString::fromLatin1(name));
  return w;
}

QFont FixedFont() {
  QFont font(QStringLiteral("Courier"));
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  font.setPointSize(10);
  return font;
}

}  // namespace zentrel::ui

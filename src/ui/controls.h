#pragma once
// What every tab needs to build its controls: the state, the binding table, and a way to run a
// control's handler by name. The helpers give each widget its control name and caption and
// register it with the binding table.

#include <QString>
#include <cstdint>
#include <functional>
#include <string>

#include "ui/form_binding.h"

class QCheckBox;
class QComboBox;
class QFont;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QWidget;

namespace zentrel::ui {

struct View {
  AppState& s;
  FormBinding& bind;
  std::function<void(const std::string&)> run;  // runs the named control's handler
};

// The property that marks a check box or drop-down without a handler of its own: the core
// reads its value when another control runs.
inline constexpr const char* kFormOnly = "zentrelFormOnly";

// Qt reads "&" in a caption as a mnemonic; the system's captions mean the character itself.
QString Caption(const char* text);

QPushButton* MakeButton(View& v, QWidget* parent, const char* name, const char* caption);
// A check box whose click runs its handler (dispatch) or only changes its Form value.
QCheckBox* MakeCheck(View& v, QWidget* parent, const char* name, const char* caption,
                     int16_t* field, bool dispatch = true);
// A drop-down whose pick runs its handler (dispatch) or is only read by others; wide enough
// for the given number of characters.
QComboBox* MakeCombo(View& v, QWidget* parent, const char* name, state::DropDown* field, int chars,
                     bool dispatch = true);
QLineEdit* MakeLineEdit(View& v, QWidget* parent, const std::string& name, std::string* field,
                        FormBinding::Setter setter = {}, TextKind kind = TextKind::Page);
QPlainTextEdit* MakeTextArea(View& v, QWidget* parent, const char* name, std::string* field,
                             bool readOnly, FormBinding::Layout layout = FormBinding::Layout::AsIs);
QLabel* MakeLabel(QWidget* parent, const QString& text, const char* name = nullptr);

// A fixed-pitch font for the page source and the report.
QFont FixedFont();

}  // namespace zentrel::ui

#pragma once
// The one place where the widgets and the Form model meet. Each bound widget remembers what it
// was last shown; Pull copies into the Form only what the user changed since, Push writes back
// only what the core changed (signals blocked), so large texts are copied only when they moved.

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "state/form_model.h"
#include "ui/text_codec.h"

class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QStatusBar;
class QTabWidget;
class QWidget;

namespace zentrel {
struct AppState;
}

namespace zentrel::ui {

// How a text is turned into characters: with the page's codec or as a file path.
enum class TextKind { Page, Path };

class FormBinding {
 public:
  using Setter = std::function<void(AppState&, const std::string&)>;

  explicit FormBinding(AppState& s);

  // The page text whose bytes decide the codec of every page text.
  void CodecSource(const std::string* pageText) { codecSource_ = pageText; }
  // Called after the user changes a control that has a change handler.
  void OnUserChange(std::function<void()> callback) { onUserChange_ = std::move(callback); }

  void LineEdit(QLineEdit* w, std::string* field, Setter setter = {},
                TextKind kind = TextKind::Page);
  // How a text area lays its text out: as it stands, or, for a long text of one paragraph
  // shown read-only (the body's words), cut after a space into blocks of about a thousand
  // characters, which Qt lays out only where they are seen.
  enum class Layout { AsIs, Blocks };
  void TextArea(QPlainTextEdit* w, std::string* field, Layout layout = Layout::AsIs);
  void Selection(QPlainTextEdit* w, const std::string* text, int32_t* start, int32_t* length);
  void CheckBox(QCheckBox* w, int16_t* field);
  void ComboBox(QComboBox* w, state::DropDown* field);
  void Label(QLabel* w, const std::string* field);
  void ToolTip(QWidget* w, const std::string* field);
  // A numbered entry (" 1: page.html") gets its number as the key that picks it.
  void Menu(QAction* a, const state::MenuEntry* entry, bool numbered = false);
  // The caption, with the window's modified marker ("*") after the page's name.
  void WindowTitle(QWidget* w, const std::string* field, const bool* modified);
  void StatusBar(QStatusBar* w, const std::string* field);
  void Tabs(QTabWidget* w, int16_t* field);
  // A control of its own kind: `pull` copies what the user changed into the Form, `push` shows
  // what the core changed.
  void Custom(std::function<void()> pull, std::function<void()> push) {
    entries_.push_back({std::move(pull), std::move(push)});
  }

  void Pull();
  void Push();
  Codec PageCodec() const { return codec_; }

 private:
  struct Entry {
    std::function<void()> pull;
    std::function<void()> push;
  };
  // A text area on a tab the user is not looking at gets its text when it is shown: setting
  // megabytes into a QPlainTextEdit (and laying out a wrapped one) is the slow part of a push.
  // Its selection waits with it, since it needs the text underneath.
  struct Deferred {
    bool text = false;
    bool selection = false;
    std::function<void()> showText;
    std::function<void()> showSelection;
  };
  Deferred& DeferredFor(QPlainTextEdit* w);
  QString Show(const std::string& bytes, TextKind kind) const;
  std::string Take(const QString& text, TextKind kind) const;
  void Changed();
  // A text the user cannot edit: shown when the core changed it, never read back.
  void ShowOnly(const std::string* field, std::function<void(const QString&)> apply);

  AppState& s_;
  std::vector<Entry> entries_;
  std::unordered_map<const QPlainTextEdit*, std::shared_ptr<Deferred>> deferred_;
  const std::string* codecSource_ = nullptr;
  std::string codecSeen_;
  Codec codec_ = Codec::Utf8;
  int generation_ = 0;  // raised when the codec changes, so every text is shown again
  std::function<void()> onUserChange_;
};

}  // namespace zentrel::ui

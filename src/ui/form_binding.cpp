#include "ui/form_binding.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimer>
#include <memory>

#include "commands/startup.h"
#include "state/app_state.h"

namespace zentrel::ui {

namespace {

// What a widget was last shown, in the Form's terms, and the codec generation it was shown in.
struct Shown {
  std::string bytes;
  QString text;
  int generation = -1;
  bool dirty = false;
};

// The editor's text as the page holds it: QTextDocument keeps no line ends of its own, so a
// page that used CR LF gets CR LF back; no-break spaces stay as they are.
QString EditorText(const QPlainTextEdit* w, bool crlf) {
  QString text = w->document()->toRawText();
  text.replace(QChar::ParagraphSeparator, crlf ? QStringLiteral("\r\n") : QStringLiteral("\n"));
  return text;
}

// Counts the texts a page editor was given, so its selection knows when the caret went home.
constexpr const char* kTextVersion = "zentrelTextVersion";

bool UsesCrLf(const std::string& bytes) {
  std::size_t crlf = 0, lf = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\n')
      (i > 0 && bytes[i - 1] == '\r') ? ++crlf : ++lf;
  }
  return crlf >= lf && crlf > 0;
}

// Runs a callback when the watched widget is shown.
class ShowWatcher : public QObject {
 public:
  ShowWatcher(QWidget* w, std::function<void()> onShow) : QObject(w), onShow_(std::move(onShow)) {
    w->installEventFilter(this);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show)
      onShow_();
    return QObject::eventFilter(watched, event);
  }

 private:
  std::function<void()> onShow_;
};

// A widget of a shown window that is itself hidden sits on a tab not in front; it cannot be
// seen or edited until it is shown. A window not shown yet (or a lone widget) is filled at once.
bool OutOfSight(const QWidget* w) {
  return !w->isVisible() && w->window()->isVisible();
}

// Past this many bytes a text takes long enough to go into its box to want the busy pointer.
constexpr std::size_t kLongText = 256 * 1024;

class BusyWhileLong {
 public:
  explicit BusyWhileLong(std::size_t bytes) : on_(bytes > kLongText) {
    if (on_)
      QApplication::setOverrideCursor(Qt::WaitCursor);
  }
  ~BusyWhileLong() {
    if (on_)
      QApplication::restoreOverrideCursor();
  }
  BusyWhileLong(const BusyWhileLong&) = delete;
  BusyWhileLong& operator=(const BusyWhileLong&) = delete;

 private:
  bool on_;
};

// One paragraph of megabytes is laid out whole before anything shows; blocks are laid out as
// they come into sight. Each block ends after a space (or, in a stretch without one, after
// twice the block length, never inside a surrogate pair).
constexpr qsizetype kBlockChars = 1000;

QString In_Blocks(const QString& text) {
  if (text.size() <= 2 * kBlockChars)
    return text;
  QString out;
  out.reserve(text.size() + text.size() / kBlockChars + 1);
  qsizetype from = 0;
  while (text.size() - from > 2 * kBlockChars) {
    qsizetype cut = text.indexOf(u' ', from + kBlockChars) + 1;
    if (cut <= 0 || cut - from > 2 * kBlockChars) {
      cut = from + 2 * kBlockChars;
      if (text[cut - 1].isHighSurrogate())
        --cut;
    }
    out += QStringView(text).mid(from, cut - from);
    out += u'\n';
    from = cut;
  }
  out += QStringView(text).mid(from);
  return out;
}

// A text in blocks goes into its box a slice at a time: the first at once, each further one
// when the event loop comes round again, so the window never waits for the whole of it.
constexpr qsizetype kSliceChars = 128 * 1024;

// Where a slice from `from` ends: at the block end after kSliceChars, or at the text's end.
qsizetype Slice_End(const QString& text, qsizetype from) {
  if (text.size() - from <= kSliceChars)
    return text.size();
  const qsizetype end = text.indexOf(u'\n', from + kSliceChars);
  return end < 0 ? text.size() : end;
}

// Appends the slices of `text` after `from` to the box, one per turn of the event loop, while
// the box shows the same text (`generation` unchanged).
void Fill_Later(QPlainTextEdit* w, std::shared_ptr<const QString> text, qsizetype from,
                std::shared_ptr<int> generation, int mine) {
  if (from >= text->size() || *generation != mine)
    return;
  QTimer::singleShot(0, w, [w, text, from, generation, mine] {
    if (*generation != mine)
      return;
    const qsizetype end = Slice_End(*text, from + 1);
    QTextCursor cursor(w->document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertBlock();
    cursor.insertText(text->mid(from + 1, end - from - 1));
    Fill_Later(w, text, end, generation, mine);
  });
}

QString MenuText(QString caption) {
  return caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

}  // namespace

FormBinding::FormBinding(AppState& s) : s_(s) {}

QString FormBinding::Show(const std::string& bytes, TextKind kind) const {
  return kind == TextKind::Path ? DecodePath(bytes) : Decode(bytes, codec_);
}

std::string FormBinding::Take(const QString& text, TextKind kind) const {
  return kind == TextKind::Path ? EncodePath(text) : Encode(text, codec_);
}

FormBinding::Deferred& FormBinding::DeferredFor(QPlainTextEdit* w) {
  auto& d = deferred_[w];
  if (!d) {
    d = std::make_shared<Deferred>();
    new ShowWatcher(w, [d] {
      if (d->text && d->showText)
        d->showText();
      if (d->selection && d->showSelection)
        d->showSelection();
    });
  }
  return *d;
}

void FormBinding::Changed() {
  if (onUserChange_)
    onUserChange_();
}

void FormBinding::LineEdit(QLineEdit* w, std::string* field, Setter setter, TextKind kind) {
  auto shown = std::make_shared<Shown>();
  if (setter) {
    QObject::connect(w, &QLineEdit::textEdited, w, [this] { Changed(); });
  }
  entries_.push_back({[this, w, field, setter, kind, shown] {
                        if (w->text() == shown->text)
                          return;
                        shown->text = w->text();
                        shown->bytes = Take(shown->text, kind);
                        if (setter)
                          setter(s_, shown->bytes);
                        else
                          *field = shown->bytes;
                      },
                      [this, w, field, kind, shown] {
                        if (shown->generation == generation_ && shown->bytes == *field)
                          return;
                        const QSignalBlocker block(w);
                        shown->bytes = *field;
                        shown->text = Show(*field, kind);
                        shown->generation = generation_;
                        w->setText(shown->text);
                        w->setCursorPosition(0);
                      }});
}

void FormBinding::TextArea(QPlainTextEdit* w, std::string* field, Layout layout) {
  auto shown = std::make_shared<Shown>();
  auto crlf = std::make_shared<bool>(false);
  Deferred& deferred = DeferredFor(w);
  QObject::connect(w, &QPlainTextEdit::textChanged, w, [shown] { shown->dirty = true; });
  // Sets the text last taken from the Form, in the codec of the push that took it (the codec
  // changes only in a push, and a push after a change takes the text again).
  auto generation = std::make_shared<int>(0);
  auto setText = [this, w, shown, crlf, layout, generation, &deferred] {
    const QSignalBlocker block(w);
    const BusyWhileLong busy(shown->bytes.size());
    deferred.text = false;
    *crlf = UsesCrLf(shown->bytes);
    const int mine = ++*generation;
    if (layout == Layout::Blocks) {
      auto text = std::make_shared<const QString>(In_Blocks(Show(shown->bytes, TextKind::Page)));
      const qsizetype first = Slice_End(*text, 0);
      w->setPlainText(text->left(first));
      Fill_Later(w, text, first, generation, mine);
    } else {
      w->setPlainText(Show(shown->bytes, TextKind::Page));
    }
    shown->dirty = false;
  };
  deferred.showText = setText;
  entries_.push_back({[this, w, field, shown, crlf, layout] {
                        // A text still waiting to be shown was never in the editor to change;
                        // one cut into blocks is never read back.
                        if (!shown->dirty || layout == Layout::Blocks)
                          return;
                        shown->dirty = false;
                        shown->bytes = Take(EditorText(w, *crlf), TextKind::Page);
                        *field = shown->bytes;
                      },
                      [this, w, field, shown, setText, &deferred] {
                        if (shown->generation == generation_ && shown->bytes == *field)
                          return;
                        shown->bytes = *field;
                        shown->generation = generation_;
                        shown->dirty = false;
                        w->setProperty(kTextVersion, w->property(kTextVersion).toInt() + 1);
                        if (OutOfSight(w))
                          deferred.text = true;
                        else
                          setText();
                      }});
}

void FormBinding::Selection(QPlainTextEdit* w, const std::string* text, int32_t* start,
                            int32_t* length) {
  struct Sel {
    int32_t start = 0, length = 0;
    int textVersion = -1;
    bool dirty = false;
  };
  auto sel = std::make_shared<Sel>();
  Deferred& deferred = DeferredFor(w);
  auto select = [this, w, text, sel, &deferred] {
    const QSignalBlocker block(w);
    deferred.selection = false;
    const auto first = static_cast<std::size_t>(std::max(sel->start, 0));
    const auto last = first + static_cast<std::size_t>(std::max(sel->length, 0));
    QTextCursor c(w->document());
    c.setPosition(ByteToEditor(*text, codec_, first));
    c.setPosition(ByteToEditor(*text, codec_, last), QTextCursor::KeepAnchor);
    w->setTextCursor(c);
    w->ensureCursorVisible();
  };
  deferred.showSelection = select;
  QObject::connect(w, &QPlainTextEdit::cursorPositionChanged, w, [sel] { sel->dirty = true; });
  QObject::connect(w, &QPlainTextEdit::selectionChanged, w, [sel] { sel->dirty = true; });
  entries_.push_back({[this, w, text, start, length, sel] {
                        if (!sel->dirty)
                          return;
                        sel->dirty = false;
                        const QTextCursor c = w->textCursor();
                        const auto a = EditorToByte(*text, codec_, c.selectionStart());
                        const auto b = EditorToByte(*text, codec_, c.selectionEnd());
                        *start = sel->start = static_cast<int32_t>(a);
                        *length = sel->length = static_cast<int32_t>(b - a);
                      },
                      [w, start, length, sel, select, &deferred] {
                        // A text shown afresh puts the caret at the top; the Form follows the
                        // editor then.
                        const int version = w->property(kTextVersion).toInt();
                        if (version != sel->textVersion) {
                          sel->textVersion = version;
                          *start = sel->start = 0;
                          *length = sel->length = 0;
                          deferred.selection = false;
                          return;
                        }
                        if (*start == sel->start && *length == sel->length)
                          return;
                        sel->start = *start;
                        sel->length = *length;
                        if (deferred.text || OutOfSight(w))
                          deferred.selection = true;
                        else
                          select();
                      }});
}

void FormBinding::CheckBox(QCheckBox* w, int16_t* field) {
  auto shown = std::make_shared<int16_t>(-1);
  entries_.push_back({[w, field, shown] {
                        const int16_t value = w->isChecked() ? 1 : 0;
                        if (value != *shown)
                          *field = *shown = value;
                      },
                      [w, field, shown] {
                        if (*field == *shown)
                          return;
                        const QSignalBlocker block(w);
                        *shown = *field;
                        w->setChecked(*field != 0);
                      }});
}

void FormBinding::ComboBox(QComboBox* w, state::DropDown* field) {
  struct State {
    std::vector<std::string> list;
    Shown text;
  };
  auto st = std::make_shared<State>();
  entries_.push_back({[this, w, field, st] {
                        if (w->currentText() == st->text.text)
                          return;
                        st->text.text = w->currentText();
                        st->text.bytes = Take(st->text.text, TextKind::Page);
                        field->Text = st->text.bytes;
                      },
                      [this, w, field, st] {
                        const bool fresh = st->text.generation != generation_;
                        if (!fresh && st->list == field->List && st->text.bytes == field->Text)
                          return;
                        const QSignalBlocker block(w);
                        if (fresh || st->list != field->List) {
                          st->list = field->List;
                          QStringList items;
                          for (const auto& item : field->List)
                            items << Show(item, TextKind::Page);
                          w->clear();
                          w->addItems(items);
                        }
                        st->text.bytes = field->Text;
                        st->text.text = Show(field->Text, TextKind::Page);
                        st->text.generation = generation_;
                        const int index = w->findText(st->text.text);
                        if (index >= 0)
                          w->setCurrentIndex(index);
                        w->setEditText(st->text.text);
                      }});
}

void FormBinding::ShowOnly(const std::string* field, std::function<void(const QString&)> apply) {
  auto shown = std::make_shared<Shown>();
  entries_.push_back({[] {},
                      [this, field, shown, apply] {
                        if (shown->generation == generation_ && shown->bytes == *field)
                          return;
                        shown->bytes = *field;
                        shown->generation = generation_;
                        apply(Show(*field, TextKind::Page));
                      }});
}

void FormBinding::Label(QLabel* w, const std::string* field) {
  ShowOnly(field, [w](const QString& text) { w->setText(text); });
}

void FormBinding::ToolTip(QWidget* w, const std::string* field) {
  ShowOnly(field, [w](const QString& text) { w->setToolTip(text); });
}

void FormBinding::Menu(QAction* a, const state::MenuEntry* entry, bool numbered) {
  entries_.push_back({[] {},
                      [a, entry, numbered] {
                        if (!entry->Caption.empty()) {
                          QString text = MenuText(DecodePath(entry->Caption));
                          const qsizetype digit =
                              text.indexOf(QRegularExpression(QStringLiteral("[0-9]")));
                          if (numbered && digit >= 0)
                            text.insert(digit, u'&');
                          a->setText(text);
                        }
                        a->setVisible(entry->Visible);
                      }});
}

void FormBinding::WindowTitle(QWidget* w, const std::string* field, const bool* modified) {
  entries_.push_back({[] {},
                      [w, field, modified] {
                        // Qt shows "[*]" as the marker; a "[*]" of the path stays as it is.
                        QString title = DecodePath(*field).replace(QStringLiteral("[*]"),
                                                                   QStringLiteral("[*][*]"));
                        const QString program =
                            QStringLiteral("   ") + QString::fromLatin1(commands::kProgramName);
                        const qsizetype at = title.lastIndexOf(program);
                        title.insert(at < 0 ? title.size() : at, QStringLiteral("[*]"));
                        if (w->windowTitle() != title)
                          w->setWindowTitle(title);
                        w->setWindowModified(*modified);
                      }});
}

void FormBinding::StatusBar(QStatusBar* w, const std::string* field) {
  // Compared with what the bar shows now: a menu's hover text may have wiped it meanwhile.
  entries_.push_back({[] {},
                      [this, w, field] {
                        const QString text = Show(*field, TextKind::Page);
                        if (w->currentMessage() != text)
                          w->showMessage(text);
                      }});
}

void FormBinding::Tabs(QTabWidget* w, int16_t* field) {
  auto shown = std::make_shared<int16_t>(-1);
  entries_.push_back({[w, field, shown] {
                        const auto index = static_cast<int16_t>(w->currentIndex());
                        if (index != *shown)
                          *field = *shown = index;
                      },
                      [w, field, shown] {
                        if (*field == *shown)
                          return;
                        const QSignalBlocker block(w);
                        *shown = *field;
                        w->setCurrentIndex(*field);
                      }});
}

void FormBinding::Pull() {
  for (auto& e : entries_)
    e.pull();
  // Text the user typed keeps the codec it was typed in, whatever its bytes now look like.
  if (codecSource_ && *codecSource_ != codecSeen_)
    codecSeen_ = *codecSource_;
}

void FormBinding::Push() {
  if (codecSource_ && *codecSource_ != codecSeen_) {
    codecSeen_ = *codecSource_;
    const Codec codec = codec::DetectCodec(codecSeen_);
    if (codec != codec_) {
      codec_ = codec;
      ++generation_;
    }
  }
  for (auto& e : entries_)
    e.push();
}

}  // namespace zentrel::ui

#pragma once
// What the core asks of the outside world. Implemented by the Qt view, by the CLI, and by a
// scripted fake in the tests.

#include <cstdint>
#include <string>
#include <vector>

namespace zentrel::state {

// An open-file or save-file dialog. The filter is "|"-separated description and pattern pairs
// ending in "|" ("(*.txt)|*.txt|"); FilterIndex is 1-based. When the user picks a file the
// dialog writes the chosen path, filter index and that filter's extension back.
struct FileDialog {
  std::string FileName;
  std::string Filter;
  int32_t FilterIndex = 1;
  std::string DefaultExt;
};

class Platform {
 public:
  virtual ~Platform() = default;

  // True when the user chose a file (FileName then holds it); false when cancelled.
  virtual bool ShowOpen(FileDialog& dialog) = 0;
  virtual bool ShowSave(FileDialog& dialog) = 0;

  // A modal question with Yes and No and a question icon; true for Yes.
  virtual bool AskYesNo(const std::string& title, const std::string& text) = 0;
  // What a save will change (a line diff, and the tags that disappear), with Save and Cancel
  // buttons; true for Save.
  virtual bool ConfirmChanges(const std::string& diffText,
                              const std::vector<std::string>& vanishingTags) = 0;
  // A message box with an OK button.
  virtual void ShowMessage(const std::string& text) = 0;
  // A message box for a fault of the program itself (a control without a handler).
  virtual void ShowCritical(const std::string& text) = 0;

  // The busy pointer; calls nest (use BusyCursor).
  virtual void BeginBusy() = 0;
  virtual void EndBusy() = 0;

  // Lets pending user-interface events run during long loops.
  virtual void DoEvents() = 0;

  // Opens a document with its associated application (the "open" verb).
  virtual void OpenDocument(const std::string& path) = 0;

  // The folder of the running program (where the preferences file, dictionary/ and docs/ are).
  virtual std::string ExecutableFolder() = 0;
};

// Shows the busy pointer for its lifetime, so every exit path restores the normal one.
class BusyCursor {
 public:
  explicit BusyCursor(Platform& platform) : platform_(platform) { platform_.BeginBusy(); }
  ~BusyCursor() { platform_.EndBusy(); }
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;

 private:
  Platform& platform_;
};

}  // namespace zentrel::state

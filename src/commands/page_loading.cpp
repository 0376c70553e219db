#include "commands/page_loading.h"

#include <algorithm>

#include "base/file_io.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "commands/checks.h"
#include "commands/choice_lists.h"
#include "commands/edit_meta_tags.h"
#include "commands/scan_keywords.h"
#include "commands/startup.h"
#include "commands/unsaved_edits.h"
#include "commands/view_body_report.h"
#include "decode/meta_tag_table.h"
#include "document/document_cache.h"
#include "state/app_state.h"

namespace zentrel::commands {

namespace {

constexpr int16_t kRecentShown = 5;
constexpr int16_t kRecentCaptionLength = 32;

// The page read into the cache as the current document, or nullopt when it cannot be read:
// the message is shown and the page in hand stays current, its name included.
std::optional<int32_t> Read_Page(AppState& s, const std::string& path, int16_t skipRecentList) {
  const std::string previousName = s.CurrentFileName;
  try {
    if (skipRecentList == 0) {
      Add_Recent_File(s, path);
      Show_Quick_Load_File_MNU_Listings(s);
    }
    s.CurrentFileName = path;
    int32_t length = document::DO_LOAD_File_TO_CACHE(s, path);
    s.Form.Html_Document_Editor = s.DocumentText;
    Clear_Page_Checks(s);  // the analysis checks the page; an empty one has none
    SET_PROGRAM_TITLE(s, s.CurrentFileName);
    return length;
  } catch (const file_io::FileError& e) {
    s.platform->ShowMessage(e.what());
  } catch (const RunTimeError& e) {
    s.platform->ShowMessage(e.what());
  }
  s.CurrentFileName = previousName;
  return std::nullopt;
}

// A page the user picked replaces the one in hand once the unsaved edits are settled; the
// analysis runs on it, and it stands as saved.
void Replace_Page(AppState& s, const std::string& path, int16_t skipRecentList) {
  if (!Settle_Unsaved_Edits(s))
    return;
  const std::string previousName = s.CurrentFileName;
  if (skipRecentList != 0)
    s.CurrentFileName.clear();
  const std::optional<int32_t> length = Read_Page(s, path, skipRecentList);
  if (!length) {
    s.CurrentFileName = previousName;
    return;
  }
  s.DocumentLength = *length;
  try {
    if (s.DocumentLength != 0)
      Check_And_Scan(s, path);
  } catch (...) {
    Mark_Page_Saved(s);  // what the failed analysis filled is no edit of the user's
    throw;
  }
  Mark_Page_Saved(s);
}

// Refused before anything changes, so a wrong pick never unloads the page in hand.
bool Can_Be_A_Page(AppState& s, const std::string& path) {
  try {
    file_io::CheckReadableKind(path);
    return true;
  } catch (const file_io::FileError& e) {
    s.platform->ShowMessage(e.what());
    return false;
  }
}

}  // namespace

int32_t Load_File_To_Cache(AppState& s, const std::string& path, int16_t skipRecentList) {
  return Read_Page(s, path, skipRecentList).value_or(0);
}

// No duplicate check: loading a page twice lists it twice.
void Add_Recent_File(AppState& s, const std::string& path) {
  if (s.RecentFileCount != 0) {
    for (int i = kRecentShown - 1; i >= 0; --i)
      At(s.RecentFiles, i + 1) = At(s.RecentFiles, i);
  }
  At(s.RecentFiles, 0) = path;
  if (s.RecentFileCount < kRecentShown)
    ++s.RecentFileCount;
}

std::optional<std::string> Choose_Page_File(AppState& s, bool save) {
  state::FileDialog dialog{s.CurrentFileName, kPageFilter, s.DefaultFileTypeIndex,
                           s.DefaultFileExtension};
  if (!(save ? s.platform->ShowSave(dialog) : s.platform->ShowOpen(dialog)))
    return std::nullopt;
  s.DefaultFileTypeIndex = dialog.FilterIndex;
  s.DefaultFileExtension = dialog.DefaultExt;
  return dialog.FileName;
}

void Do_Load_File(AppState& s, const std::string& /*path*/, int16_t /*flag*/) {
  // The dialog always starts from the current file, whatever the caller passed.
  if (std::optional<std::string> path = Choose_Page_File(s, false))
    Load_Chosen_Page(s, *path);
}

void Load_Chosen_Page(AppState& s, const std::string& path) {
  if (path.empty() || !file_io::FileExists(path) || !Can_Be_A_Page(s, path))
    return;
  Replace_Page(s, path, 0);
}

std::string Do_Select_Load_File(AppState& s, const std::string& filter, int16_t filterIndex,
                                const std::string& defaultExt) {
  state::FileDialog dialog{"", filter, filterIndex, defaultExt};
  if (!s.platform->ShowOpen(dialog))
    return {};
  return dialog.FileName;
}

void Load_File_QuickLoadMenu(AppState& s, int16_t index) {
  // An entry beyond the list is hidden in the menu and has nothing to open.
  if (index < 0 || index >= s.RecentFileCount)
    return;
  const std::string path = At(s.RecentFiles, index);
  if (!Can_Be_A_Page(s, path))
    return;
  // Re-opening an entry leaves the list as it is.
  Replace_Page(s, path, 1);
}

void Show_Quick_Load_File_MNU_Listings(AppState& s) {
  if (s.RecentFileCount == 0)
    return;
  s.Form.mnu_file_QuickLoadSlash.Visible = false;
  for (int16_t i = 0; i < kRecentShown; ++i) {
    state::MenuEntry& entry = At(s.Form.mnu_file_QuickLoadFile, i);
    if (i < s.RecentFileCount) {
      std::string label = text::SignedNumber(i + 1) + ":";
      entry.Caption = Clip_FileName(At(s.RecentFiles, i), label, kRecentCaptionLength);
      entry.Visible = true;
      s.Form.mnu_file_QuickLoadSlash.Visible = true;
    } else {
      entry.Visible = false;
    }
  }
}

std::string Clip_FileName(const std::string& path, const std::string& label, int16_t maxLength) {
  std::string caption = label + " " + path;
  if (caption.size() <= static_cast<size_t>(std::max<int16_t>(maxLength, 0)))
    return caption;
  size_t tail = std::min(static_cast<size_t>(std::max(maxLength - 6, 0)), path.size());
  return label + " " + path.substr(0, 2) + "/..." + path.substr(path.size() - tail);
}

void Clear_Document(AppState& s) {
  s.CurrentFileName.clear();
  s.DocumentText.clear();
  s.StrippedText.clear();
  s.DocumentLength = 0;
  // Keep the cache's one element past the (now empty) page at 0.
  s.DocumentBytes.assign(1, 0);
  s.Form.Html_Document_Editor.clear();
  s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox.clear();
  ViewBody_Forget_Words(s);
  s.Form.ScanKeyWords_DocumentWordCount_TextBox.clear();
  s.Form.ScanKeyWords_KeyWordMatches_TextBox.clear();
  s.Form.ScanKeyWords_KeyWordDensity_TextBox.clear();
  s.TitleText.clear();
  s.TitleStart = 0;
  s.TitleEnd = 0;
  decode::Clear_MetaTag_Values(s);
  Set_Metatag_Page_TextBoxes(s);
  Set_Drop_Downs(s);
  Clear_Page_Checks(s);
  SET_PROGRAM_TITLE(s, s.CurrentFileName);
}

}  // namespace zentrel::commands

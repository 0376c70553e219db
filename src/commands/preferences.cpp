#include "commands/preferences.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "base/file_io.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "commands/page_loading.h"
#include "commands/startup.h"
#include "state/app_state.h"

namespace zentrel::commands {

namespace {

using state::Setting;
using state::Stored;

constexpr std::string_view kComa = "&COMA&";
constexpr std::string_view kTitleKey = "ProgramTitle:";
constexpr std::string_view kVersionKey = "ProgramVersion:";
constexpr std::string_view kRecentKey = "FileLoaded:";

// The settings kept in the file, in the file's order.
const std::vector<const Setting*>& Stored_Settings() {
  static const std::vector<const Setting*> rows = [] {
    std::vector<const Setting*> kept;
    for (const Setting& row : state::Settings()) {
      if (row.Format != Stored::No)
        kept.push_back(&row);
    }
    std::sort(kept.begin(), kept.end(),
              [](const Setting* a, const Setting* b) { return a->FileOrder < b->FileOrder; });
    return kept;
  }();
  return rows;
}

// A number read from the start of the value, rounded to nearest (halves to even).
int64_t Read_Whole_Number(std::string_view value) {
  double rounded = std::nearbyint(text::Val(value));
  // Beyond what any option holds; also keeps the conversion below defined.
  if (!(rounded >= -9.0e18 && rounded <= 9.0e18))
    RaiseOverflow();
  return static_cast<int64_t>(rounded);
}

std::string Value_Text(const AppState& s, const Setting& row) {
  if (row.Flag)
    return text::SignedNumber(s.*row.Flag);
  if (row.Number)
    return text::SignedNumber(s.*row.Number);
  if (row.Format == Stored::ComaText)
    return text::ReplaceAll(s.*row.Text, ",", kComa);
  return s.*row.Text;
}

void Read_Value(AppState& s, const Setting& row, std::string_view value) {
  if (row.Flag) {
    const int16_t number = ToInt16(Read_Whole_Number(value));
    s.*row.Flag = row.Format == Stored::Bit0 ? static_cast<int16_t>(number & 1) : number;
  } else if (row.Number) {
    s.*row.Number = ToInt32(Read_Whole_Number(value));
  } else if (row.Format == Stored::ComaText) {
    s.*row.Text = text::ReplaceAll(value, kComa, ",");
  } else {
    s.*row.Text = value;
  }
}

// Reads one line's value into what its key names; unknown keys and the program's title and
// version are ignored.
void Read_Entry(AppState& s, std::string_view key, std::string_view value) {
  if (key == kRecentKey) {
    Add_Recent_File(s, std::string(value));
    return;
  }
  for (const Setting* row : Stored_Settings()) {
    if (row->Key == key)
      return Read_Value(s, *row, value);
  }
}

}  // namespace

std::string Preferences_Path(const AppState& s) {
  if (!s.PreferencesFileOverride.empty())
    return s.PreferencesFileOverride;
  return s.ProgramFolder + "/" + kPreferencesFileName;
}

void SavePreferencesFile(AppState& s) {
  std::string out;
  auto line = [&out](std::string_view key, std::string_view value) {
    out.append(key);
    out.append(value);
    out.append(text::kCrLf);
  };
  line(kTitleKey, kProgramName);
  line(kVersionKey, kProgramVersion);
  for (int i = s.RecentFileCount - 1; i >= 0; --i)
    line(kRecentKey, At(s.RecentFiles, i));
  for (const Setting* row : Stored_Settings()) {
    if (row->Format != Stored::OptionalText || !(s.*row->Text).empty())
      line(row->Key, Value_Text(s, *row));
  }
  file_io::WriteFileAtomic(Preferences_Path(s), out, *s.files);
}

void LoadPreferencesFile(AppState& s) {
  LoadPreferencesFile(s, Preferences_Path(s));
}

void LoadPreferencesFile(AppState& s, const std::string& path) {
  if (!file_io::FileExists(path))
    return;
  std::string content;
  try {
    content = file_io::ReadWholeFile(path);
  } catch (const file_io::FileError& e) {
    s.platform->ShowMessage(e.what());
    return;
  }
  // A value that does not fit its option skips that line only; the rest still counts.
  std::string firstError;
  int skipped = 0;
  file_io::ReadListItems(content, [&](std::string_view item) {
    auto [key, value] = file_io::SplitPreferenceLine(item);
    if (key.empty())
      return;
    try {
      Read_Entry(s, key, value);
    } catch (const RunTimeError& e) {
      if (skipped++ == 0)
        firstError = std::string(item) + ": " + e.what();
    }
  });
  if (skipped > 0) {
    s.platform->ShowMessage("The preferences file \"" + path + "\" has " + std::to_string(skipped) +
                            " setting(s) that could not be read and keep their values (" +
                            firstError + ")");
  }
}

}  // namespace zentrel::commands

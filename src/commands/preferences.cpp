#include "commands/preferences.h"

#include <cmath>
#include <string_view>

#include "base/file_io.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "commands/page_loading.h"
#include "commands/startup.h"
#include "state/app_state.h"

namespace zentrel::commands {

namespace {

// How an entry's value is written and read.
enum class Format {
  Constant,      // written as a fixed text, ignored on input
  RecentList,    // one line per recent page, oldest first
  Number16,      // 16-bit option in signed number form
  Number32,      // 32-bit option in signed number form
  Bit0,          // 16-bit flag of which only bit 0 is kept on input
  Text,          // text as it stands
  ComaText,      // text whose commas are written as "&COMA&"
  OptionalText,  // text, its line written only when not empty
};

struct Entry {
  std::string_view Key;
  Format Kind;
  int16_t state::ShellFields::*Flag = nullptr;
  int32_t state::ShellFields::*Number = nullptr;
  std::string state::ShellFields::*Str = nullptr;
  std::string_view Constant = {};
};

constexpr std::string_view kComa = "&COMA&";

// The entries in the order they are written; reading looks keys up in the same table.
const Entry kEntries[] = {
    {"ProgramTitle:", Format::Constant, nullptr, nullptr, nullptr, kProgramName},
    {"ProgramVersion:", Format::Constant, nullptr, nullptr, nullptr, kProgramVersion},
    {"FileLoaded:", Format::RecentList},
    {"Keywords_Sorted:", Format::Number16, &state::ShellFields::KeywordsSortList},
    {"Keywords_RemoveDuplicates:", Format::Number16, &state::ShellFields::KeywordsRemoveDoubles},
    {"Keywords_ForceSameCaseMatching:", Format::Number16,
     &state::ShellFields::KeywordsForceSameCase},
    {"Keywords_MinMatches:", Format::Number16, &state::ShellFields::KeywordsUseMinMatches},
    {"Keywords_NumberOfMinMatches:", Format::Number16, &state::ShellFields::KeywordsMinMatches},
    {"Keywords_MatchingType:", Format::Number16, &state::ShellFields::KeywordsMatchScanType},
    {"WordMatch_ForceSameCase:", Format::Number16, &state::ShellFields::WordMatchForceCase},
    {"WordMatch_ForceAlphaNumeric:", Format::Number16,
     &state::ShellFields::WordMatchIgnoreAlphaNumeric},
    {"FileType:", Format::Text, nullptr, nullptr, &state::ShellFields::DefaultFileExtension},
    {"FileTypeIndex:", Format::Number32, nullptr, &state::ShellFields::DefaultFileTypeIndex},
    {"StopWordChrs:", Format::ComaText, nullptr, nullptr, &state::ShellFields::WordDelimiterChars},
    {"SwapContentNameOrder:", Format::Bit0, &state::ShellFields::EncodeSwapContentAndNameOrder},
    {"KeywordsComaSpace:", Format::Bit0, &state::ShellFields::EncodeComaSpaceBetweenKeywords},
    {"IncludeMetaDizzy:", Format::Bit0, &state::ShellFields::DecodeIncludeMetaDescriptionWithBody},
    {"DefaultWordFilterDictionary:", Format::OptionalText, nullptr, nullptr,
     &state::ShellFields::FilterDictionaryFile},
};

// A number read from the start of the value, rounded to nearest (halves to even).
int64_t Read_Whole_Number(std::string_view value) {
  double rounded = std::nearbyint(text::Val(value));
  // Beyond what any option holds; also keeps the conversion below defined.
  if (!(rounded >= -9.0e18 && rounded <= 9.0e18))
    RaiseOverflow();
  return static_cast<int64_t>(rounded);
}

void Write_Entry(const AppState& s, const Entry& e, std::string& out) {
  auto line = [&](std::string_view value) {
    out.append(e.Key);
    out.append(value);
    out.append(text::kCrLf);
  };
  switch (e.Kind) {
    case Format::Constant:
      line(e.Constant);
      break;
    case Format::RecentList:
      for (int i = s.RecentFileCount - 1; i >= 0; --i)
        line(At(s.RecentFiles, i));
      break;
    case Format::Number16:
    case Format::Bit0:
      line(text::SignedNumber(s.*e.Flag));
      break;
    case Format::Number32:
      line(text::SignedNumber(s.*e.Number));
      break;
    case Format::Text:
      line(s.*e.Str);
      break;
    case Format::ComaText:
      line(text::ReplaceAll(s.*e.Str, ",", kComa));
      break;
    case Format::OptionalText:
      if (!(s.*e.Str).empty())
        line(s.*e.Str);
      break;
  }
}

void Read_Entry(AppState& s, const Entry& e, std::string_view value) {
  switch (e.Kind) {
    case Format::Constant:
      break;
    case Format::RecentList:
      Add_Recent_File(s, std::string(value));
      break;
    case Format::Number16:
      s.*e.Flag = ToInt16(Read_Whole_Number(value));
      break;
    case Format::Bit0:
      s.*e.Flag = static_cast<int16_t>(ToInt16(Read_Whole_Number(value)) & 1);
      break;
    case Format::Number32:
      s.*e.Number = ToInt32(Read_Whole_Number(value));
      break;
    case Format::Text:
    case Format::OptionalText:
      s.*e.Str = value;
      break;
    case Format::ComaText:
      s.*e.Str = text::ReplaceAll(value, kComa, ",");
      break;
  }
}

const Entry* Find_Entry(std::string_view key) {
  for (const Entry& e : kEntries) {
    if (e.Key == key)
      return &e;
  }
  return nullptr;
}

}  // namespace

std::string Preferences_Path(const AppState& s) {
  if (!s.PreferencesFileOverride.empty())
    return s.PreferencesFileOverride;
  return s.ProgramFolder + "/" + kPreferencesFileName;
}

void SavePreferencesFile(AppState& s) {
  std::string out;
  for (const Entry& e : kEntries)
    Write_Entry(s, e, out);
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
    const Entry* entry = key.empty() ? nullptr : Find_Entry(key);
    if (entry == nullptr)
      return;
    try {
      Read_Entry(s, *entry, value);
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

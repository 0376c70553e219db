#include "words/word_extraction.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "state/app_state.h"

namespace zentrel::words {

namespace {

constexpr int kLastControlOrSpace = 32;
constexpr unsigned char kComma = 44;
constexpr unsigned char kBelowSplits = 13;  // codes below this split a list; CR itself does not

}  // namespace

void Init_Get_word_string_Chr_table(AppState& s) {
  s.Get_Word_String_Chr_Table.fill(0);
  for (int c = 0; c <= kLastControlOrSpace; ++c)
    At(s.Get_Word_String_Chr_Table, c) = 1;
  for (const char c : s.WordDelimiterChars)
    At(s.Get_Word_String_Chr_Table, static_cast<unsigned char>(c)) = 1;
}

std::string Get_Word_String(const AppState& s, int32_t start) {
  const std::string& text = s.StrippedText;
  const auto length = static_cast<int64_t>(text.size());
  if (start < 1 || start > length)
    return {};
  int64_t p = start;
  // Stops at the text's length without looking at the last character, so a word that runs to
  // the very end comes back one character short.
  while (p != length &&
         At(s.Get_Word_String_Chr_Table, static_cast<unsigned char>(text[p - 1])) == 0)
    ++p;
  return text.substr(static_cast<size_t>(start - 1), static_cast<size_t>(p - start));
}

int16_t Split_String(AppState& s, const std::string& text) {
  int16_t count = 0;
  std::string piece;
  if (text.empty())
    return 0;
  const size_t length = text.size();
  for (size_t p = 0; p < length; ++p) {
    const auto c = static_cast<unsigned char>(text[p]);
    const bool last = p + 1 == length;
    if (c == kComma || c < kBelowSplits || last) {
      // The last character joins the last piece whatever it is, a comma included.
      if (last)
        piece.push_back(text[p]);
      At(s.Split_String_List, count) = Trim_Spaces_String(piece);
      piece.clear();
      count = ToInt16(count + 1);
    } else {
      piece.push_back(text[p]);
    }
  }
  return count;
}

std::string Trim_Spaces_String(const std::string& text) {
  return text::Trim(text);
}

std::string MakeStringSingleSpaced(const std::string& text) {
  // A pair becomes a space, which cannot form a new pair, so one left-to-right pass leaves no
  // pair behind.
  return text::ReplaceAll(text, "\"\"", " ");
}

}  // namespace zentrel::words

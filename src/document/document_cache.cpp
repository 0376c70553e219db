#include "document/document_cache.h"

#include <algorithm>
#include <string_view>

#include "app/app_state.h"
#include "base/file_io.h"
#include "base/run_time_error.h"

namespace zentrel::document {

namespace {

constexpr uint8_t kSpace = 32;
constexpr int32_t kClearLookAhead = 33;  // white space blanked after a cleared stretch
constexpr int32_t kReloadSpare = 4;      // zero bytes kept beyond an edited page

bool IsWhite(uint8_t b) {
  return b <= kSpace;
}

}  // namespace

int32_t Reload_File_From_Memory_TO_Cache(AppState& s) {
  const std::string& edited = s.Form.Html_Document_Editor;
  if (edited == s.DocumentText)
    return s.DocumentLength;
  app::BusyCursor busy(*s.platform);
  const int32_t n = ToInt32(static_cast<int64_t>(edited.size()));
  const int32_t allocated = ToInt32(static_cast<int64_t>(n) + kReloadSpare);
  // The page, then zeros up to the recorded size: each byte written once.
  const auto* data = reinterpret_cast<const uint8_t*>(edited.data());
  s.DocumentBytes.clear();
  s.DocumentBytes.reserve(static_cast<size_t>(allocated) + 1);
  s.DocumentBytes.assign(data, data + edited.size());
  s.DocumentBytes.resize(static_cast<size_t>(allocated) + 1, 0);
  s.DocumentBytesAllocated = allocated;
  s.DocumentText = edited;
  return n;
}

void Html_Init_ASCII_Constants(AppState& s) {
  s.CodeTagOpen = '<';
  s.CodeTagClose = '>';
  s.CodePlus = '+';
  s.CodeMinus = '-';
  s.CodeStar = '*';
  s.CodeSlash = '/';
  s.CodeSpace = ' ';
  s.CodeCR = 13;
  s.CodeLF = 10;
  s.CodeEquals = '=';
  s.CodeQuote = '"';
  s.CodeAmpersand = '&';
  s.CodeComma = ',';
  s.CodeColon = ':';
  s.CodeSemicolon = ';';
  s.CodePoint = '.';
  s.CodeOpenBracket = '(';
  s.CodeCloseBracket = ')';
  s.CodeUnderscore = '_';
  s.CodeQuestion = '?';
  s.CodeOpenSquare = '[';
  s.CodeCloseSquare = ']';
}

int32_t DO_LOAD_File_TO_CACHE(AppState& s, const std::string& path) {
  std::string bytes = file_io::ReadWholeFile(path);
  const int32_t n = ToInt32(static_cast<int64_t>(bytes.size()));
  s.DocumentBytes.clear();
  s.DocumentBytes.reserve(bytes.size() + 1);  // the zero byte past the page without a move
  const auto* data = reinterpret_cast<const uint8_t*>(bytes.data());  // copied as one block
  s.DocumentBytes.assign(data, data + bytes.size());
  s.DocumentBytes.push_back(0);
  s.DocumentText = std::move(bytes);
  s.Form.Html_Document_Editor = s.DocumentText;
  return n;
}

void Html_Clear_Cache_Section(AppState& s, int32_t start, int32_t end) {
  if (start < 0 || end < 0)
    return;
  if (start < end) {
    CacheByte(s, end - 1);  // the whole stretch must lie in the cache
    std::fill(s.DocumentBytes.begin() + start, s.DocumentBytes.begin() + end, uint8_t{0});
  }
  // The white space after the stretch (usually the removed tag's line end) goes with it.
  const int64_t last = static_cast<int64_t>(end) + kClearLookAhead - 1;
  for (int64_t p = end; p <= last; ++p) {
    if (p >= s.DocumentLength || !IsWhite(CacheByte(s, p)))
      break;
    s.DocumentBytes[static_cast<size_t>(p)] = 0;
  }
}

std::string Get_String_From_CacheAtPos(const AppState& s, int32_t first, int32_t last) {
  if (first > last)
    return {};
  CacheByte(s, first);
  CacheByte(s, last);
  return std::string(s.DocumentBytes.begin() + first, s.DocumentBytes.begin() + last + 1);
}

std::string Get_String_From_Cache(const AppState& s) {
  int64_t p = s.ScanPosition;
  while (p < s.DocumentLength && IsWhite(CacheByte(s, p)))
    ++p;
  std::string word;
  while (p < s.DocumentLength) {
    const uint8_t b = CacheByte(s, p);
    if (IsWhite(b))
      break;
    word.push_back(static_cast<char>(b));
    ++p;
  }
  return word;
}

int32_t Find_String_Filecache(const AppState& s, std::string_view needle, int32_t start) {
  if (needle.empty())
    return -1;
  const int64_t from = std::max<int64_t>(start, 0);
  // The match must end before the last byte: p + length < DocumentLength.
  const int64_t limit = static_cast<int64_t>(s.DocumentLength) - 1;  // exclusive end of match
  if (limit - from < static_cast<int64_t>(needle.size()))
    return -1;
  CacheByte(s, limit - 1);
  const std::string_view hay(reinterpret_cast<const char*>(s.DocumentBytes.data()),
                             static_cast<size_t>(limit));
  const size_t hit = hay.find(needle, static_cast<size_t>(from));
  return hit == std::string_view::npos ? -1 : static_cast<int32_t>(hit);
}

std::string Strip_Spaces(AppState& s, const std::string& text) {
  if (text.empty())
    return {};
  const size_t len = text.size();
  std::string out;
  out.reserve(len);
  // Characters 1 .. length-1 (1-based); the last one is replaced by a space.
  size_t i = 0;
  while (i + 1 < len) {
    const auto c = static_cast<uint8_t>(text[i]);
    if (!IsWhite(c)) {
      out.push_back(text[i]);
      ++i;
      continue;
    }
    size_t j = i;
    while (j + 1 < len && IsWhite(static_cast<uint8_t>(text[j])))
      ++j;
    const size_t run = j - i;
    if (run > 2) {
      out.push_back(' ');
      s.ScanPosition = ToInt32(static_cast<int64_t>(j));  // 1-based index of the run's end
    } else {
      out.append(run, ' ');
    }
    i = j;
  }
  out.push_back(' ');
  return out;
}

}  // namespace zentrel::document

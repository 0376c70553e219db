#include "document/document_cache.h"

#include <algorithm>
#include <string_view>

#include "base/file_io.h"
#include "base/run_time_error.h"
#include "state/app_state.h"

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
  state::BusyCursor busy(*s.platform);
  const int32_t n = ToInt32(static_cast<int64_t>(edited.size()));
  ToInt32(static_cast<int64_t>(n) + kReloadSpare);  // the cache's highest index
  Fill_Document_Cache(s, edited, kReloadSpare + 1);
  s.DocumentText = edited;
  return n;
}

int32_t DO_LOAD_File_TO_CACHE(AppState& s, const std::string& path) {
  std::string bytes = file_io::ReadWholeFile(path);
  const int32_t n = ToInt32(static_cast<int64_t>(bytes.size()));
  Fill_Document_Cache(s, bytes, 1);
  s.DocumentText = std::move(bytes);
  return n;
}

void Fill_Document_Cache(AppState& s, std::string_view bytes, size_t zeros) {
  // Copied as one block, then the zeros, into room made once: each byte is written once.
  const auto* data = reinterpret_cast<const uint8_t*>(bytes.data());
  s.DocumentBytes.clear();
  s.DocumentBytes.reserve(bytes.size() + zeros);
  s.DocumentBytes.assign(data, data + bytes.size());
  s.DocumentBytes.resize(bytes.size() + zeros, 0);
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

}  // namespace zentrel::document

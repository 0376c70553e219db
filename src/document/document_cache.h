#pragma once
// The page in memory: its bytes (the document cache, scanned by position) and its text (shown
// in the page source editor), the shared scan cursor and the character codes the scanners use.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/run_time_error.h"
#include "state/document_fields.h"

namespace zentrel {
struct AppState;
}

namespace zentrel::document {

// Byte p of the cache. A position outside the cache is a subscript error, never a stray read.
inline uint8_t CacheByte(const state::DocumentCacheFields& c, int64_t p) {
  if (p < 0 || static_cast<uint64_t>(p) >= c.DocumentBytes.size())
    RaiseSubscriptOutOfRange();
  return c.DocumentBytes[static_cast<size_t>(p)];
}

// Takes the page source editor's text back into the cache when it changed; returns the length.
int32_t Reload_File_From_Memory_TO_Cache(AppState& s);
// Reads a page file into the cache and DocumentText; throws file_io::FileError. The caller
// shows the text in the page source editor.
int32_t DO_LOAD_File_TO_CACHE(AppState& s, const std::string& path);
// Puts bytes into the cache, followed by `zeros` zero bytes (at least the one past the page).
void Fill_Document_Cache(AppState& s, std::string_view bytes, size_t zeros);
void Html_Clear_Cache_Section(AppState& s, int32_t start, int32_t end);
std::string Get_String_From_CacheAtPos(const AppState& s, int32_t first, int32_t last);
int32_t Find_String_Filecache(const AppState& s, std::string_view needle, int32_t start);

}  // namespace zentrel::document

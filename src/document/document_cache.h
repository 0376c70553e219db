#pragma once
// The page in memory: its bytes (the document cache, scanned by position) and its text (shown
// in the page source editor), the shared scan cursor and the character codes the scanners use.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/run_time_error.h"

namespace zentrel {
struct AppState;
}

namespace zentrel::document {

struct DocumentCacheFields {
  // Indexes 0..DocumentLength; the element past the page is always 0 (4 spare after a reload).
  std::vector<uint8_t> DocumentBytes = std::vector<uint8_t>(1, 0);
  int32_t DocumentBytesAllocated = 0;  // recorded size of the cache after a reload
  int32_t DocumentLength = 0;
  std::string DocumentText;
  int32_t ScanPosition = 0;

  // Character codes, set by Html_Init_ASCII_Constants.
  int16_t CodeTagOpen = 0, CodeTagClose = 0, CodePlus = 0, CodeMinus = 0, CodeStar = 0,
          CodeSlash = 0, CodeSpace = 0, CodeCR = 0, CodeLF = 0, CodeEquals = 0, CodeQuote = 0,
          CodeAmpersand = 0, CodeComma = 0, CodeColon = 0, CodeSemicolon = 0, CodePoint = 0,
          CodeOpenBracket = 0, CodeCloseBracket = 0, CodeUnderscore = 0, CodeQuestion = 0,
          CodeOpenSquare = 0, CodeCloseSquare = 0;
};

// Byte p of the cache. A position outside the cache is a subscript error, never a stray read.
inline uint8_t CacheByte(const DocumentCacheFields& c, int64_t p) {
  if (p < 0 || static_cast<uint64_t>(p) >= c.DocumentBytes.size())
    RaiseSubscriptOutOfRange();
  return c.DocumentBytes[static_cast<size_t>(p)];
}

// Takes the page source editor's text back into the cache when it changed; returns the length.
int32_t Reload_File_From_Memory_TO_Cache(AppState& s);
void Html_Init_ASCII_Constants(AppState& s);
// Reads a page file into the cache and the editor; throws file_io::FileError.
int32_t DO_LOAD_File_TO_CACHE(AppState& s, const std::string& path);
void Html_Clear_Cache_Section(AppState& s, int32_t start, int32_t end);
std::string Get_String_From_CacheAtPos(const AppState& s, int32_t first, int32_t last);
std::string Get_String_From_Cache(const AppState& s);
int32_t Find_String_Filecache(const AppState& s, std::string_view needle, int32_t start);
std::string Strip_Spaces(AppState& s, const std::string& text);

}  // namespace zentrel::document

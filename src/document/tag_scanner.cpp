#include "document/tag_scanner.h"

#include <algorithm>
#include <cstring>

#include "base/run_time_error.h"
#include "base/text.h"
#include "document/document_cache.h"
#include "state/app_state.h"

namespace zentrel::document {

namespace {

constexpr uint8_t kTagOpen = '<';
constexpr uint8_t kTagClose = '>';
constexpr uint8_t kQuote = '"';
constexpr uint8_t kSlash = '/';
constexpr uint8_t kSpace = 32;

bool EndsTagName(uint8_t b) {
  return b <= kSpace || b == kTagClose;
}

std::string ClosingTextFor(const std::string& openText) {
  std::string closing = "</" + (openText.empty() ? std::string() : openText.substr(1));
  if (closing.back() != '>')
    closing.push_back('>');
  return text::LCase(closing);
}

// First p in [from, last] where the closing text stands (case-insensitively), or -1. The
// caller has made sure every byte it may compare lies inside the cache.
int32_t SearchClosing(const AppState& s, const std::string& closing, int64_t from, int64_t last) {
  const uint8_t* bytes = s.DocumentBytes.data();
  int64_t p = from;
  while (p <= last) {
    const void* hit = std::memchr(bytes + p, kTagOpen, static_cast<size_t>(last - p + 1));
    if (hit == nullptr)
      return -1;
    p = static_cast<const uint8_t*>(hit) - bytes;
    if (bytes[p + 1] == kSlash) {
      size_t i = 0;
      while (i < closing.size() &&
             text::LowerAscii(static_cast<char>(bytes[p + static_cast<int64_t>(i)])) == closing[i])
        ++i;
      if (i == closing.size())
        return static_cast<int32_t>(p);
    }
    ++p;
  }
  return -1;
}

state::ClosingTagMemo* FindMemo(AppState& s, const std::string& closing) {
  for (state::ClosingTagMemo& memo : s.ClosingTagMemos) {
    if (memo.closing == closing)
      return &memo;
  }
  return nullptr;
}

}  // namespace

ClosingTagMemoScope::ClosingTagMemoScope(state::TagScannerFields& fields) : fields_(fields) {
  fields_.ClosingTagMemos.clear();
  fields_.ClosingTagMemoActive = true;
}

ClosingTagMemoScope::~ClosingTagMemoScope() {
  fields_.ClosingTagMemoActive = false;
  fields_.ClosingTagMemos.clear();
}

void Add_Tag_Ignore(AppState& s, const std::string& openText, int16_t kind) {
  const int16_t i = s.TagListCount;
  At(s.TagOpenList, i) = openText;
  At(s.TagKindList, i) = std::to_string(kind);
  s.TagListCount = ToInt16(i + 1);
}

void Build_Tag_list(AppState& s) {
  // No closing texts are kept: Find_Closing_Html_Tag builds each from its opening text.
  Add_Tag_Ignore(s, "<meta", 1);
  Add_Tag_Ignore(s, "<a", 2);
  Add_Tag_Ignore(s, "<script", 2);
  Add_Tag_Ignore(s, "<applet", 2);
  Add_Tag_Ignore(s, "<?", 2);
  Add_Tag_Ignore(s, "<?php", 2);
  Add_Tag_Ignore(s, "<style", 2);
}

int16_t Scan_Tag_List(const AppState& s, const std::string& tagText) {
  // Each entry against the tag in lower case, folded while comparing rather than copied.
  const auto matches = [&tagText](const std::string& entry) {
    if (entry.size() != tagText.size())
      return false;
    for (size_t c = 0; c < entry.size(); ++c) {
      if (text::LowerAscii(tagText[c]) != entry[c])
        return false;
    }
    return true;
  };
  // Entries past the table are a subscript error once the loop reaches them.
  const int64_t count = s.TagListCount;
  const int64_t inTable = std::min<int64_t>(count, static_cast<int64_t>(s.TagOpenList.size()));
  for (int64_t i = 0; i < inTable; ++i) {
    if (matches(s.TagOpenList[static_cast<size_t>(i)]))
      return ToInt16(static_cast<int64_t>(text::Val(At(s.TagKindList, i))));
  }
  if (inTable < count)
    RaiseSubscriptOutOfRange();
  return 0;
}

std::string Get_Open_Html_String(const AppState& s) {
  const int64_t from = s.ScanPosition;
  const int64_t end = s.DocumentLength;
  if (from >= end)
    return {};
  // Byte by byte in effect, a position outside the cache being a subscript error.
  CacheByte(s, from);
  const int64_t inCache = std::min<int64_t>(end, static_cast<int64_t>(s.DocumentBytes.size()));
  const uint8_t* bytes = s.DocumentBytes.data();
  int64_t p = from;
  while (p < inCache && !EndsTagName(bytes[p]))
    ++p;
  if (p == inCache && inCache < end)
    RaiseSubscriptOutOfRange();
  return std::string(reinterpret_cast<const char*>(bytes) + from, static_cast<size_t>(p - from));
}

std::string Get_This_MetaTags_Variables(const AppState& s, const std::string& keyword) {
  std::string value;
  // A quote does not shield a ">" here: the first ">" always ends the value.
  for (int64_t p = static_cast<int64_t>(s.ScanPosition) + static_cast<int64_t>(keyword.size());
       p <= s.ScanEndPosition; ++p) {
    const uint8_t b = CacheByte(s, p);
    if (b == kTagClose)
      break;
    value.push_back(static_cast<char>(b));
  }
  return value;
}

void Find_Close_Of_This_Html_Tag(AppState& s, const std::string& tagText) {
  bool inQuote = false;
  const int64_t from = static_cast<int64_t>(s.ScanPosition) + static_cast<int64_t>(tagText.size());
  const int64_t last = s.ScanEndPosition;
  if (from <= last) {
    // Byte by byte in effect, a position outside the cache being a subscript error.
    CacheByte(s, from);
    const int64_t lastInCache =
        std::min<int64_t>(last, static_cast<int64_t>(s.DocumentBytes.size()) - 1);
    const uint8_t* bytes = s.DocumentBytes.data();
    for (int64_t p = from; p <= lastInCache; ++p) {
      const uint8_t b = bytes[p];
      if (b == kQuote) {
        inQuote = !inQuote;
      } else if (b == kTagClose && !inQuote) {
        s.ScanPosition = ToInt32(p + 1);
        return;
      }
    }
    if (lastInCache < last)
      RaiseSubscriptOutOfRange();
  }
  s.ScanPosition = ToInt32(static_cast<int64_t>(s.ScanEndPosition) + 1);
}

int32_t Find_Closing_Html_Tag(AppState& s, const std::string& openText) {
  const std::string closing = ClosingTextFor(openText);
  const int64_t from = s.ScanPosition;
  // A candidate needs p + length < DocumentLength, which also keeps every compared byte in
  // the cache.
  int64_t last = static_cast<int64_t>(s.DocumentLength) - static_cast<int64_t>(closing.size()) - 1;
  if (s.ScanEndPosition < last)
    last = s.ScanEndPosition;
  int32_t found = -1;
  if (from <= last) {
    CacheByte(s, from);
    CacheByte(s, last + static_cast<int64_t>(closing.size()));

    state::ClosingTagMemo* memo = s.ClosingTagMemoActive ? FindMemo(s, closing) : nullptr;
    if (memo != nullptr && memo->end == s.ScanEndPosition && memo->length == s.DocumentLength &&
        memo->from <= from && (memo->result < 0 || from <= memo->result)) {
      found = memo->result;
    } else {
      found = SearchClosing(s, closing, from, last);
      if (s.ClosingTagMemoActive) {
        if (memo == nullptr) {
          s.ClosingTagMemos.push_back({closing, 0, -1, 0, 0});
          memo = &s.ClosingTagMemos.back();
        }
        *memo = {closing, static_cast<int32_t>(from), found, s.ScanEndPosition, s.DocumentLength};
      }
    }
  }
  if (found >= 0)
    s.ScanPosition = ToInt32(static_cast<int64_t>(found) + static_cast<int64_t>(closing.size()));
  return found;
}

}  // namespace zentrel::document

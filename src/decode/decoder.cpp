#include "decode/decoder.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "base/run_time_error.h"
#include "base/text.h"
#include "decode/meta_tag_table.h"
#include "document/document_cache.h"
#include "document/tag_scanner.h"
#include "state/app_state.h"
#include "words/word_extraction.h"

namespace zentrel::decode {

namespace {

using document::CacheByte;

constexpr int kPassesBetweenEvents = 800;
constexpr int32_t kWordTextPadding = 500;
constexpr uint8_t kTagOpen = '<';
constexpr int16_t kMetaAddToText = -1;    // what the full decode passes to the META decoder
constexpr int32_t kTitleOpenLength = 7;   // "<title>"
constexpr int32_t kTitleCloseLength = 9;  // "</title>" and one more: the range is inclusive
constexpr int32_t kAltValueOffset = 5;    // "alt=" and the opening quote

// The word text's length during a decode: the page and the padding.
int64_t WordTextRoom(const AppState& s) {
  return static_cast<int64_t>(s.DocumentLength) + kWordTextPadding;
}

// Writes a piece of word text at StrippedTextPosition. The text never grows past its room, so
// a piece that would run past that end is cut there; the position counts the piece whole.
// Pieces follow one another, so the text is appended to; the room not reached yet is the
// padding, which only the finish writes.
void AppendWordText(AppState& s, std::string_view piece) {
  const int64_t at = static_cast<int64_t>(s.StrippedTextPosition) - 1;
  const int64_t room = WordTextRoom(s);
  if (at >= 0 && at < room) {
    const auto n = static_cast<size_t>(std::min(static_cast<int64_t>(piece.size()), room - at));
    const auto from = static_cast<size_t>(at);
    std::string& text = s.StrippedText;
    if (text.size() == from) {
      text.append(piece.data(), n);
    } else {
      if (text.size() < from)
        text.append(from - text.size(), ' ');
      text.replace(from, std::min(n, text.size() - from), piece.data(), n);
    }
  }
  s.StrippedTextPosition =
      ToInt32(static_cast<int64_t>(s.StrippedTextPosition) + static_cast<int64_t>(piece.size()));
}

constexpr std::string_view kEntities[] = {"&nbsp;", "&quot;", "&amp;", "&gt;", "&lt;"};
constexpr char kEntityChars[] = {' ', '"', '&', '>', '<'};
constexpr size_t kAmp = 2;  // "&amp;": its "&" still starts a "&gt;" or "&lt;"

// The entity at the start of `rest`, as an index of kEntities, or -1.
int EntityAt(std::string_view rest) {
  for (size_t e = 0; e < std::size(kEntities); ++e) {
    if (rest.substr(0, kEntities[e].size()) == kEntities[e])
      return static_cast<int>(e);
  }
  return -1;
}

// In one pass, the same text as replacing, one after the other and each everywhere, "&nbsp;",
// "&quot;", "&amp;", "&gt;" and "&lt;" by their characters, then CR LF by nothing, then "  "
// by " " until none is left. The replacements cannot make a match for an earlier one, and only
// the "&" of "&amp;" can start one for a later one ("&amp;gt;" gives ">"); they never make a
// CR or LF, so the line breaks removed are exactly the CR LF pairs of the text read from left
// to right.
void FinishInOnePass(std::string& text) {
  char* data = text.data();
  const size_t size = text.size();
  size_t write = 0;
  char previous = '\0';
  for (size_t read = 0; read < size;) {
    char c = data[read];
    size_t used = 1;
    if (c == '&') {
      const std::string_view rest(data + read, size - read);
      const int e = EntityAt(rest);
      if (e >= 0) {
        c = kEntityChars[e];
        used = kEntities[e].size();
        // The "&" that "&amp;" leaves, with the text after it, may make a later entity.
        for (size_t then = kAmp + 1; e == static_cast<int>(kAmp) && then < std::size(kEntities);
             ++then) {
          if (rest.substr(used, kEntities[then].size() - 1) == kEntities[then].substr(1)) {
            c = kEntityChars[then];
            used += kEntities[then].size() - 1;
            break;
          }
        }
      }
    } else if (c == '\r' && read + 1 < size && data[read + 1] == '\n') {
      read += 2;
      continue;
    }
    read += used;
    // A space is dropped when the character kept before it is a space.
    data[write] = c;
    write += static_cast<size_t>(c != ' ' || previous != ' ');
    previous = c;
  }
  text.resize(write);
}

void FinishWordText(AppState& s) {
  // Keeps one trailing space of the padding.
  const auto keep = static_cast<size_t>(std::max(s.StrippedTextPosition, 0));
  s.StrippedText.resize(static_cast<size_t>(std::min<int64_t>(keep, WordTextRoom(s))), ' ');
  s.platform->DoEvents();
  FinishInOnePass(s.StrippedText);
  s.platform->DoEvents();  // where the entities and line breaks were done
  s.platform->DoEvents();  // where the spaces were folded
}

// An image's ALT text, taken from the second character after "alt=" up to the next double
// quote. Returns 1 when the tag had an "alt=" and was moved past.
int16_t DecodeAltText(AppState& s, const std::string& tagText) {
  const std::string attributes = document::Get_This_MetaTags_Variables(s, tagText) + " ";
  const int64_t alt = text::InStr(1, text::LCase(attributes), "alt=");
  if (alt == 0)
    return 0;
  const int64_t from = alt + kAltValueOffset;
  const int64_t quote = text::InStr(from, attributes, "\"");
  // Without a closing quote there is no ALT text, but the tag is still passed.
  if (quote >= from)
    AppendWordText(s,
                   std::string_view(attributes)
                       .substr(static_cast<size_t>(from - 1), static_cast<size_t>(quote - from)));
  document::Find_Close_Of_This_Html_Tag(s, tagText);
  return 1;
}

void HandleTag(AppState& s, bool collect) {
  std::string tag = document::Get_Open_Html_String(s);
  for (char& c : tag)
    c = text::LowerAscii(c);
  const std::string_view name = tag;  // compared by length first, then by bytes
  int16_t handled = 0;
  if (name == "<head") {
    s.HeadStart = s.ScanPosition;
  } else if (name == "</head") {
    s.HeadEnd = s.ScanPosition;
  } else if (name == "<body") {
    s.BodyStart = s.ScanPosition;
  } else if (name == "</body") {
    s.BodyEnd = s.ScanPosition;
  } else if (name == "<html") {
    s.HtmlStart = s.ScanPosition;
  } else if (name == "</html") {
    s.HtmlEnd = s.ScanPosition;
  } else if (name == "<title") {
    handled = Html_Decode_TitleTag(s, tag, collect ? 1 : 0);
  } else if (name == "<img") {
    if (collect && s.DecodeIncludeAltText == 1)
      handled = DecodeAltText(s, tag);
  } else if (name == "<meta") {
    handled = Html_Decode_METATAG(s, tag, collect ? kMetaAddToText : 0);
  }
  if (handled != 0)
    return;
  // Kind 2 tags lose their whole content; an unclosed one loses only itself.
  if (document::Scan_Tag_List(s, tag) == 2 && document::Find_Closing_Html_Tag(s, tag) != -1)
    return;
  document::Find_Close_Of_This_Html_Tag(s, tag);
}

// One walk over the page from ScanPosition to ScanEndPosition. The full decode collects the
// word text; the rescan only finds positions, the title and the META values.
void Walk(AppState& s, bool collect) {
  const document::ClosingTagMemoScope memo(s);
  CacheByte(s, s.DocumentLength);  // the zero byte past the page must be there
  const uint8_t* bytes = s.DocumentBytes.data();
  int passes = 0;
  while (s.ScanPosition <= s.ScanEndPosition) {
    // The text up to the next "<"; at the page's end the zero byte past it is taken too.
    const int64_t start = s.ScanPosition;
    int64_t stop = s.DocumentLength + 1;
    if (start <= s.DocumentLength) {
      CacheByte(s, start);
      const void* hit =
          std::memchr(bytes + start, kTagOpen, static_cast<size_t>(s.DocumentLength - start + 1));
      if (hit != nullptr) {
        stop = static_cast<const uint8_t*>(hit) - bytes;
        s.ScanPosition = static_cast<int32_t>(stop);
      } else {
        s.ScanPosition = s.DocumentLength;
      }
    }
    const bool bodyClosed = s.BodyStart != -1 && s.BodyEnd != -1;
    if (collect && s.DecodeIncludeBodyText == 1 && !bodyClosed && stop > start) {
      AppendWordText(s, std::string_view(reinterpret_cast<const char*>(bytes) + start,
                                         static_cast<size_t>(stop - start)));
    }
    if (++passes > kPassesBetweenEvents) {
      s.platform->DoEvents();
      passes = 0;
    }
    if (CacheByte(s, s.ScanPosition) == kTagOpen)
      HandleTag(s, collect);
  }
}

}  // namespace

void HTML_Decode_Document(AppState& s) {
  if (s.DocumentLength < 1)
    return;
  s.ScanPosition = 0;
  words::Init_Get_word_string_Chr_table(s);
  // Room for the page and the padding, written only where text goes: the pages of memory
  // that no text reaches are never touched.
  s.StrippedText = std::string();
  s.StrippedText.reserve(static_cast<size_t>(s.DocumentLength) + kWordTextPadding);
  s.StrippedTextPosition = 1;
  s.ScanEndPosition = s.DocumentLength - 1;
  Reset_HTML_BODY_AND_HEADER_VALUES(s);
  Walk(s, true);
  FinishWordText(s);
}

void HTML_ReScan_Document(AppState& s) {
  if (s.DocumentLength < 1)
    return;
  s.ScanPosition = 0;
  words::Init_Get_word_string_Chr_table(s);
  s.ScanEndPosition = s.DocumentLength - 1;
  Reset_HTML_BODY_AND_HEADER_VALUES(s);
  Walk(s, false);
}

int16_t Html_Decode_TitleTag(AppState& s, const std::string& tagText, int16_t addToText) {
  s.TitleStart = s.ScanPosition;
  if (document::Find_Closing_Html_Tag(s, tagText) == -1)
    document::Find_Close_Of_This_Html_Tag(s, tagText);
  s.TitleEnd = s.ScanPosition;
  // Fixed offsets: a title tag with attributes loses its first characters, an unclosed one
  // gives an empty title.
  s.TitleText = document::Get_String_From_CacheAtPos(
      s, ToInt32(static_cast<int64_t>(s.TitleStart) + kTitleOpenLength),
      ToInt32(static_cast<int64_t>(s.TitleEnd) - kTitleCloseLength));
  const int16_t row = Find_MetaTag_Index(s, "pagetitle");
  if (row >= 0) {
    state::MetaTagRow& entry = At(s.MetaTags, row);
    entry.MetaTagValue = s.TitleText;
    entry.MetaTagStart = text::SignedNumber(s.TitleStart);
    entry.MetaTagEnd = text::SignedNumber(s.TitleEnd);
  }
  if (s.DecodeIncludeTitleWithBody == 1 && addToText == 1)
    AppendWordText(s, s.TitleText);
  return 1;
}

int16_t Html_Decode_METATAG(AppState& s, const std::string& tagText, int16_t addToText) {
  const int32_t tagStart = s.ScanPosition;
  const std::string attributes = document::Get_This_MetaTags_Variables(s, tagText);
  const std::string lower = text::LCase(attributes);
  int16_t handled = 0;
  // Every row is tried, even after a match: a second matching row skips one tag further.
  for (int16_t i = 0; i < s.MetaTagCount; ++i) {
    state::MetaTagRow& row = At(s.MetaTags, i);
    if (lower.find(row.MetaTagQuotedForm) == std::string::npos &&
        lower.find(row.MetaTagPlainForm) == std::string::npos)
      continue;
    size_t start = std::string::npos;
    size_t end = std::string::npos;
    const size_t quoted = lower.find("content=\"");
    if (quoted != std::string::npos) {
      start = quoted + 9;
      end = lower.find('"', start);
    } else {
      const size_t plain = lower.find("content=");
      if (plain != std::string::npos) {
        start = plain + 8;
        end = lower.find(' ', start);
      }
    }
    if (start == std::string::npos || end == std::string::npos)
      continue;
    row.MetaTagValue = words::Trim_Spaces_String(" " + attributes.substr(start, end - start) + " ");
    handled = 1;
    document::Find_Close_Of_This_Html_Tag(s, tagText);
    row.MetaTagStart = text::SignedNumber(tagStart);
    row.MetaTagEnd = text::SignedNumber(s.ScanPosition);
    if (addToText == kMetaAddToText && s.DecodeIncludeMetaDescriptionWithBody == 1 &&
        row.MetaTagName == "description")
      AppendWordText(s, row.MetaTagValue);
  }
  return handled;
}

void Reset_HTML_BODY_AND_HEADER_VALUES(AppState& s) {
  s.HtmlStart = s.HtmlEnd = -1;
  s.HeadStart = s.HeadEnd = -1;
  s.BodyStart = s.BodyEnd = -1;
}

void Clear_HTML_BODY_AND_HEADER_VALUES(AppState& s) {
  for (int32_t* position :
       {&s.HtmlStart, &s.HtmlEnd, &s.HeadStart, &s.HeadEnd, &s.BodyStart, &s.BodyEnd}) {
    if (*position == -1)
      *position = 0;
  }
}

}  // namespace zentrel::decode

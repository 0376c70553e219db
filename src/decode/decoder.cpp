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

// Writes a piece of word text over the padding; the string never grows, so a piece that
// would run past its end is cut there.
void AppendWordText(AppState& s, std::string_view piece) {
  const int64_t at = static_cast<int64_t>(s.StrippedTextPosition) - 1;
  const auto size = static_cast<int64_t>(s.StrippedText.size());
  if (at >= 0 && at < size) {
    const auto n = std::min(static_cast<int64_t>(piece.size()), size - at);
    std::memcpy(s.StrippedText.data() + at, piece.data(), static_cast<size_t>(n));
  }
  s.StrippedTextPosition =
      ToInt32(static_cast<int64_t>(s.StrippedTextPosition) + static_cast<int64_t>(piece.size()));
}

// ReplaceAll for a replacement no longer than what it replaces, done inside the string so a
// large page is not copied once per entity.
void ReplaceInPlace(std::string& text, std::string_view from, std::string_view to) {
  size_t read = text.find(from);
  if (read == std::string::npos)
    return;
  size_t write = read;
  while (read != std::string::npos) {
    for (const char c : to)
      text[write++] = c;
    read += from.size();
    const size_t next = text.find(from, read);
    const size_t stop = next == std::string::npos ? text.size() : next;
    std::copy(text.begin() + static_cast<std::ptrdiff_t>(read),
              text.begin() + static_cast<std::ptrdiff_t>(stop),
              text.begin() + static_cast<std::ptrdiff_t>(write));
    write += stop - read;
    read = next;
  }
  text.resize(write);
}

// The same result as replacing "  " by " " until none is left.
void FoldSpaces(std::string& text) {
  // A space is dropped when the last kept character is a space, which is the case exactly
  // when the character read before it was one. Written without branches: a page's text is
  // megabytes of short words.
  char* data = text.data();
  const size_t size = text.size();  // held here: the writes through data may alias it
  size_t write = 0;
  char previous = '\0';
  for (size_t read = 0; read < size; ++read) {
    const char c = data[read];
    data[write] = c;
    write += static_cast<size_t>(c != ' ' || previous != ' ');
    previous = c;
  }
  text.resize(write);
}

void FinishWordText(AppState& s) {
  // Keeps one trailing space of the padding.
  const auto keep = static_cast<size_t>(std::max(s.StrippedTextPosition, 0));
  if (keep < s.StrippedText.size())
    s.StrippedText.resize(keep);
  s.platform->DoEvents();
  ReplaceInPlace(s.StrippedText, "&nbsp;", " ");
  ReplaceInPlace(s.StrippedText, "&quot;", "\"");
  ReplaceInPlace(s.StrippedText, "&amp;", "&");
  ReplaceInPlace(s.StrippedText, "&gt;", ">");
  ReplaceInPlace(s.StrippedText, "&lt;", "<");
  // A line break joins the words on either side of it.
  ReplaceInPlace(s.StrippedText, "\r\n", "");
  s.platform->DoEvents();
  FoldSpaces(s.StrippedText);
  s.platform->DoEvents();
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
  s.StrippedText.assign(static_cast<size_t>(s.DocumentLength) + kWordTextPadding, ' ');
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

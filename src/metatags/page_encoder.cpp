#include "metatags/page_encoder.h"

#include <algorithm>
#include <cstring>

#include "base/run_time_error.h"
#include "base/text.h"
#include "decode/decoder.h"
#include "decode/meta_tag_table.h"
#include "decode/section_validation.h"
#include "document/document_cache.h"
#include "state/app_state.h"

namespace zentrel::metatags {

namespace {

int32_t Position(const std::string& decimal) {
  return ToInt32(static_cast<int64_t>(text::Val(decimal)));
}

// The rescan records positions only for the tags it finds; a row keeps what an earlier decode
// (of this or another page) left. Forgetting them first means only tags found now get blanked.
void Forget_Recorded_Tag_Positions(AppState& s) {
  for (int16_t i = 0; i < s.MetaTagCount; ++i) {
    state::MetaTagRow& row = At(s.MetaTags, i);
    row.MetaTagStart = "-1";
    row.MetaTagEnd = "-1";
  }
}

std::string Build_Header_Block(AppState& s) {
  std::string block = "<TITLE>" + text::Trim(At(s.Form.MetaTag_TextBox, 0)) + "</TITLE>";
  block += text::kCrLf;
  for (int16_t i = 0; i < state::kMetaTagFieldCount; ++i) {
    const state::MetaTagRow& row = At(s.MetaTags, i);
    if (text::Val(row.MetaTagIsMeta) != 1)
      continue;
    std::string content = text::Trim(At(s.Form.MetaTag_TextBox, i));
    if (!content.empty())
      block += Build_Meta_Tag(s, content, row.MetaTagName);
  }
  if (s.Form.TagsOption_USE_META_TITLE == 1) {
    // The optional META title is cleared before it is read, so the option adds no line.
    decode::Set_MetaTag_Value(s, "title", "");
    std::string title = decode::Get_MetaTag_Value(s, "title");
    if (!title.empty())
      block += Build_Meta_Tag(s, title, "title");
  }
  return block;
}

void Blank_Old_Tags(AppState& s) {
  int16_t titleRow = decode::Find_MetaTag_Index(s, "pagetitle");
  bool titleFound = titleRow >= 0 && Position(At(s.MetaTags, titleRow).MetaTagStart) >= 0;
  if (titleFound)
    document::Html_Clear_Cache_Section(s, s.TitleStart, s.TitleEnd + 1);
  for (int16_t i = 0; i < s.MetaTagCount; ++i) {
    const state::MetaTagRow& row = At(s.MetaTags, i);
    document::Html_Clear_Cache_Section(s, Position(row.MetaTagStart), Position(row.MetaTagEnd));
  }
}

// The kept page with the header block after `insertAt`, in RebuildBytes; returns its length.
int32_t Rebuild_Into_Buffer(AppState& s, const std::string& block, int32_t insertAt) {
  // The buffer holds twice the page; a header block that does not fit then is an error. When
  // the page and the block fit for sure, only that much is set up.
  const int64_t limit = ToInt32(2 * static_cast<int64_t>(s.DocumentLength));
  const int64_t enough = int64_t{s.DocumentLength} + 1 + static_cast<int64_t>(block.size());
  s.RebuildBytes.clear();
  s.RebuildBytes.resize(static_cast<size_t>(std::min(limit, enough)));
  int32_t next = Html_Copy_Section_To_Temp(s, 0, insertAt, 0);
  for (char c : block) {
    At(s.RebuildBytes, next) = static_cast<uint8_t>(c);
    ++next;
  }
  int32_t restFrom = insertAt < 1 ? insertAt : insertAt + 1;
  next = Html_Copy_Section_To_Temp(s, restFrom, s.DocumentLength, next);
  s.RebuildBytes.resize(static_cast<size_t>(next));
  return next;
}

}  // namespace

std::string Build_Meta_Tag(const AppState& s, const std::string& content, const std::string& name) {
  std::string line;
  if (s.EncodeSwapContentAndNameOrder == 0)
    line = "<META content=\"" + text::Trim(content) + "\" name=\"" + name + "\">";
  else
    line = "<META name=\"" + text::Trim(name) + "\" content=\"" + content + "\">";
  line += text::kCrLf;
  return line;
}

std::string Rescan_For_Encoding(AppState& s) {
  Forget_Recorded_Tag_Positions(s);
  decode::HTML_ReScan_Document(s);
  return decode::HTML_VALIDATE_Document_Sections(s);
}

int32_t Rebuild_Page(AppState& s) {
  // The insertion point comes from the sections as found: clearing the header values below
  // turns a missing head into position 0, which would put the block inside the page's text.
  const int32_t insertAt = decode::Html_Get_Starting_HeaderByte_For_Tag_Encoding(s);
  decode::Clear_HTML_BODY_AND_HEADER_VALUES(s);
  decode::Set_MetaTag_Value(s, "pagetitle", s.TitleText);
  const std::string block = Build_Header_Block(s);
  Blank_Old_Tags(s);
  return Rebuild_Into_Buffer(s, block, insertAt);
}

int32_t Html_Copy_Section_To_Temp(AppState& s, int32_t from, int32_t to, int32_t destination) {
  if (from >= to)
    return destination;
  // Byte by byte in effect: the bytes blanked by Html_Clear_Cache_Section (zeros) are left
  // out, a position past the cache or the buffer is a subscript error. Done run by run.
  if (from < 0 || destination < 0)
    RaiseSubscriptOutOfRange();
  const auto cacheSize = static_cast<int64_t>(s.DocumentBytes.size());
  const int64_t last = std::min<int64_t>(to, cacheSize - 1);
  const uint8_t* bytes = s.DocumentBytes.data();
  int64_t next = destination;
  int64_t p = from;
  while (p <= last) {
    const void* zero = std::memchr(bytes + p, 0, static_cast<size_t>(last - p + 1));
    const int64_t stop = zero == nullptr ? last + 1 : static_cast<const uint8_t*>(zero) - bytes;
    const int64_t run = stop - p;
    if (next + run > static_cast<int64_t>(s.RebuildBytes.size()))
      RaiseSubscriptOutOfRange();
    std::memcpy(s.RebuildBytes.data() + next, bytes + p, static_cast<size_t>(run));
    next += run;
    p = stop + 1;  // over the zero
  }
  if (to > last)
    RaiseSubscriptOutOfRange();
  return ToInt32(next);
}

}  // namespace zentrel::metatags

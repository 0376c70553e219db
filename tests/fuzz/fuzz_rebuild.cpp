// Arbitrary page bytes and field values, rebuilt and saved. Properties for pages whose
// sections are in order and that hold no 0 byte:
// - the bytes after the rewritten part are unchanged;
// - rebuilding the rebuilt page with the same fields gives the same bytes except for white
//   space. The blanking of an old tag also eats up to 33 white-space bytes after it, so the
//   second run takes the line end of the new TITLE line together with whatever white space the
//   page had there. This second property is checked only where the encoder as defined can
//   give a stable page: plain field values, a head tag without attributes, and no TITLE or
//   META tags besides the ones the first run writes (each reason at its test below).

#include <algorithm>

#include "base/file_io.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "commands/edit_meta_tags.h"
#include "commands/page_saving.h"
#include "decode/decoder.h"
#include "decode/section_validation.h"
#include "fuzz_session.h"
#include "metatags/page_encoder.h"

using namespace zentrel;

namespace {

// Where the rebuild may change bytes: the head and every tag the rescan found, plus the white
// space the blanking eats after each.
int32_t End_Of_Rewritten_Part(const AppState& s) {
  int32_t cut = std::max(s.HeadEnd, s.TitleEnd + 34);
  for (int i = 0; i < s.MetaTagCount; ++i) {
    cut = std::max(cut, std::atoi(s.MetaTags[static_cast<size_t>(i)].MetaTagEnd.c_str()) + 34);
  }
  return cut;
}

std::string Rebuild(AppState& s, const std::string& target) {
  if (!commands::HTML_ENCODE_Document(s, target, 0))
    return {};
  return file_io::ReadWholeFile(target);
}

// True when `later` is `earlier` with some white-space bytes (0..32) deleted.
bool Only_White_Space_Deleted(const std::string& earlier, const std::string& later) {
  size_t j = 0;
  for (char c : earlier) {
    if (j < later.size() && later[j] == c) {
      ++j;
    } else if (static_cast<unsigned char>(c) > 32) {
      return false;
    }
  }
  return j == later.size();
}

// Field values are written as they stand, without escaping: a value holding a quote, a
// bracket or an attribute ("name=x") writes markup the next rescan reads differently, and a 0 byte
// is dropped by the next run's copy. Only plain values can give a stable second run.
bool Plain_Fields(const std::array<std::string, 13>& fields) {
  for (const auto& f : fields) {
    for (char c : f) {
      if (c == '"' || c == '<' || c == '>' || c == '=' || static_cast<unsigned char>(c) < 32)
        return false;
    }
  }
  return true;
}

size_t Count_Tags(const std::string& lower, const std::string& lowerTag) {
  size_t count = 0;
  for (size_t at = lower.find(lowerTag); at != std::string::npos; at = lower.find(lowerTag, at + 1))
    ++count;
  return count;
}

// Each run blanks one recorded tag per name: a page holding several tags of one name (or
// several titles) loses one more of them at the second run, and of several head tags the
// second run may write its block after another one. Only pages whose sole META tags
// and title are the ones the first run writes can give the same page twice. And an unclosed
// title ends at its own ">", whose blanking takes one byte more: the "<" of whatever tag
// follows, the head tag itself on "<title><head>". So the title, if any, must be closed.
bool Stable_Under_Rebuild(const std::string& page) {
  const std::string lower = text::LCase(page);
  const size_t titles = Count_Tags(lower, "<title");
  const bool closed = titles == 0 || (Count_Tags(lower, "</title>") == 1 &&
                                      lower.find("<title") < lower.find("</title>"));
  if (Count_Tags(lower, "<meta") != 0 || Count_Tags(lower, "<head") > 1 || titles > 1 || !closed)
    return false;
  // A title or body tag before the head moves the head when it is blanked or rewritten, and
  // the second run then finds its place elsewhere.
  const size_t head = lower.find("<head");
  for (const char* later : {"<title", "<body", "</body"}) {
    if (head != std::string::npos && lower.find(later) < head)
      return false;
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Input in(data, size);
  AppState& s = fuzz::Started_State();
  s.EncodeSwapContentAndNameOrder = in.Byte() & 1;
  std::array<std::string, 13> fields;
  for (auto& f : fields)
    f = in.Piece(40);
  const std::string page = in.Rest();
  fuzz::Put_Page(s, page);
  for (int16_t i = 0; i < 13; ++i)
    commands::Set_MetaTag_TextBox(s, i, fields[static_cast<size_t>(i)]);
  const std::string target = fuzz::Scratch_Path("rebuild.html");
  try {
    decode::HTML_ReScan_Document(s);
    const bool sane = decode::HTML_VALIDATE_Document_Sections(s).empty() &&
                      page.find('\0') == std::string::npos && s.DocumentLength > 0;
    const int32_t cut = End_Of_Rewritten_Part(s);
    // The block goes in after the fixed offset of "<head" + 5: a head tag with attributes is
    // split by it and its rest swallows the new TITLE line at the next rescan. The second run
    // is comparable only when that byte closes the tag.
    const int32_t insertAt = decode::Html_Get_Starting_HeaderByte_For_Tag_Encoding(s);
    const bool plainHead = insertAt == 0 || (static_cast<size_t>(insertAt) < page.size() &&
                                             page[static_cast<size_t>(insertAt)] == '>');
    const std::string once = Rebuild(s, target);
    if (!sane || once.empty())
      return 0;
    if (cut >= 0 && static_cast<size_t>(cut) < page.size()) {
      const std::string tail = page.substr(static_cast<size_t>(cut));
      fuzz::Require(once.size() >= tail.size() &&
                        once.compare(once.size() - tail.size(), tail.size(), tail) == 0,
                    "bytes after the rewritten head are unchanged");
    }
    if (!Plain_Fields(fields) || !plainHead || !Stable_Under_Rebuild(page))
      return 0;
    const std::string twice = Rebuild(s, target);
    fuzz::Require(Only_White_Space_Deleted(once, twice),
                  "rebuilding a rebuilt page gives the same bytes but for white space");
  } catch (const RunTimeError&) {
  } catch (const file_io::FileError&) {
  }
  return 0;
}

#pragma once
// What the checks need to know of a page, gathered in one pass of the tokenizer: the TITLE,
// META and canonical LINK tags, headings, images, the html element's language, the encoding
// declaration, and where a browser would end the head.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/codec.h"

namespace zentrel::checks {

struct TitleTag {
  size_t begin;
  std::string_view text;  // raw, as it stands in the page
};

struct MetaTag {
  size_t begin, end;
  std::string name;      // the name attribute, trimmed and in lower case
  std::string property;  // the property attribute (Open Graph), likewise
  std::string_view content;
  bool hasContent = false;
  bool hasMedia = false;  // a name that may repeat for other media (theme-color)
};

// A canonical LINK with its href, or an IMG with its src.
struct AddressTag {
  size_t begin;
  std::string_view address;
};

// A TITLE, META or LINK that a browser puts in the body because the head ended before it.
struct MovedTag {
  size_t begin;
  std::string label;  // "<meta name="description">", in UTF-8
};

struct HeadEnd {
  size_t begin;
  std::string label;  // "<div>", "</body>" or "text "Welcome..."", in UTF-8
};

struct PageFacts {
  std::vector<TitleTag> titles;
  std::vector<MetaTag> metas;
  std::vector<AddressTag> canonicals;
  std::vector<size_t> h1s;
  std::vector<AddressTag> imagesWithoutAlt;
  std::optional<size_t> htmlTag, headTag, bodyTag;
  bool lang = false;
  bool byteOrderMark = false;
  std::optional<size_t> charsetEnd;  // where the first encoding declaration's tag ends
  std::optional<HeadEnd> headEnd;    // set when the head ended before a TITLE, META or LINK
  std::vector<MovedTag> moved;

  // Where a finding about something missing from the page stands: at the head, else at the
  // html element, else at the page's start.
  size_t Anchor() const { return headTag.value_or(htmlTag.value_or(0)); }
};

PageFacts ReadPageFacts(std::string_view page, codec::Codec codec);

// Lower case and trimmed of white space, for names and keywords compared as browsers do.
std::string Folded(std::string_view value);

}  // namespace zentrel::checks

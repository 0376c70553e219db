#pragma once
// The fields of the decoder (decode/): the section positions, the title and the word text of
// the last decode, and the table of known META tag names with their values and positions.

#include <array>
#include <cstdint>
#include <string>

namespace zentrel::state {

inline constexpr int kMetaTagTableSize = 21;

struct DecoderFields {
  int32_t HtmlStart = -1, HtmlEnd = -1;
  int32_t HeadStart = -1, HeadEnd = -1;
  int32_t BodyStart = -1, BodyEnd = -1;
  int32_t TitleStart = 0;
  int32_t TitleEnd = 0;
  std::string TitleText;
  std::string StrippedText;
  int32_t StrippedTextPosition = 1;  // 1-based
};

struct MetaTagRow {
  std::string MetaTagName;
  std::string MetaTagQuotedForm;  // name="x"
  std::string MetaTagPlainForm;   // name=x
  std::string MetaTagValue;
  std::string MetaTagStart = "-1";
  std::string MetaTagEnd = "-1";
  std::string MetaTagIsMeta;  // " 1" or " 0"
};

struct MetaTagTableFields {
  std::array<MetaTagRow, kMetaTagTableSize> MetaTags;
  int16_t MetaTagCount = 0;          // rows in use (15)
  int16_t EditableMetaTagCount = 0;  // rows with an editing field (13)
};

}  // namespace zentrel::state

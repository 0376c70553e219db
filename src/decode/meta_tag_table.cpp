#include "decode/meta_tag_table.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "state/app_state.h"

namespace zentrel::decode {

namespace {

constexpr int16_t kMetaTagCount = 15;
constexpr int16_t kEditableMetaTagCount = 13;

state::MetaTagRow* FindRow(AppState& s, const std::string& name) {
  const int16_t i = Find_MetaTag_Index(s, name);
  return i < 0 ? nullptr : &At(s.MetaTags, i);
}

}  // namespace

void Init_MetaTag_Table(AppState& s) {
  Set_MetaTag_Entry(s, 0, "pagetitle", 0);  // the title element, not a META tag
  Set_MetaTag_Entry(s, 1, "description", 1);
  Set_MetaTag_Entry(s, 2, "abstract", 1);
  Set_MetaTag_Entry(s, 3, "keywords", 1);
  Set_MetaTag_Entry(s, 4, "generator", 1);
  Set_MetaTag_Entry(s, 5, "progid", 1);
  Set_MetaTag_Entry(s, 6, "author", 1);
  Set_MetaTag_Entry(s, 7, "copyright", 1);
  Set_MetaTag_Entry(s, 8, "rating", 1);
  Set_MetaTag_Entry(s, 9, "robots", 1);
  Set_MetaTag_Entry(s, 10, "revisit-after", 1);
  Set_MetaTag_Entry(s, 11, "distribution", 1);
  Set_MetaTag_Entry(s, 12, "expires", 1);
  s.EditableMetaTagCount = kEditableMetaTagCount;
  // Found and kept by the decoder, but without an editing field.
  Set_MetaTag_Entry(s, 13, "title", 1);
  Set_MetaTag_Entry(s, 14, "zentrel", 1);
  s.MetaTagCount = kMetaTagCount;
}

void Set_MetaTag_Entry(AppState& s, int16_t index, const std::string& name, int16_t isMeta) {
  state::MetaTagRow& row = At(s.MetaTags, index);
  row.MetaTagName = name;
  row.MetaTagQuotedForm = "name=\"" + name + "\"";
  row.MetaTagPlainForm = "name=" + name;
  row.MetaTagValue.clear();
  row.MetaTagStart = "-1";
  row.MetaTagEnd = "-1";
  row.MetaTagIsMeta = text::SignedNumber(isMeta);
}

void Clear_MetaTag_Values(AppState& s) {
  for (int16_t i = 0; i < s.MetaTagCount; ++i) {
    state::MetaTagRow& row = At(s.MetaTags, i);
    row.MetaTagValue.clear();
    row.MetaTagStart = "-1";
    row.MetaTagEnd = "-1";
  }
}

int16_t Find_MetaTag_Index(const AppState& s, const std::string& name) {
  for (int16_t i = 0; i < s.MetaTagCount; ++i) {
    if (At(s.MetaTags, i).MetaTagName == name)
      return i;
  }
  return -1;
}

void Set_MetaTag_Value(AppState& s, const std::string& name, const std::string& value) {
  if (state::MetaTagRow* row = FindRow(s, name))
    row->MetaTagValue = value;
}

std::string Get_MetaTag_Value(const AppState& s, const std::string& name) {
  const int16_t i = Find_MetaTag_Index(s, name);
  return i < 0 ? std::string() : At(s.MetaTags, i).MetaTagValue;
}

}  // namespace zentrel::decode

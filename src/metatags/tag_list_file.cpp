#include "metatags/tag_list_file.h"

#include "base/file_io.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "decode/meta_tag_table.h"
#include "state/app_state.h"

namespace zentrel::metatags {

namespace {

// Values are read item by item, where a comma ends an item, so commas are stored encoded.
constexpr const char* kComma = "&coma&";

}  // namespace

std::string MetaTag_List_Text(const AppState& s) {
  std::string out;
  for (int16_t i = 0; i < state::kMetaTagFieldCount; ++i) {
    if (At(s.Form.MetaTag_Selection_CheckBox, i) != 1)
      continue;
    std::string value = text::Trim(At(s.Form.MetaTag_TextBox, i));
    if (value.empty())
      continue;
    out += text::ReplaceAll(At(s.MetaTags, i).MetaTagName + ":" + value, ",", kComma);
    out += text::kCrLf;
  }
  return out;
}

std::vector<std::pair<int16_t, std::string>> Read_MetaTag_List(const AppState& s,
                                                               std::string_view content) {
  std::vector<std::pair<int16_t, std::string>> entries;
  file_io::ReadListItems(content, [&](std::string_view item) {
    auto [key, value] = file_io::SplitPreferenceLine(item);
    if (key.size() > 1)
      key.remove_suffix(1);
    const int16_t index = decode::Find_MetaTag_Index(s, std::string(key));
    if (index >= 0)
      entries.emplace_back(index, text::ReplaceAll(value, kComma, ","));
  });
  return entries;
}

}  // namespace zentrel::metatags

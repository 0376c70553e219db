#include "metatags/tag_list_file.h"

#include "app/preferences.h"
#include "base/file_io.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "decode/meta_tag_table.h"
#include "metatags/meta_tag_panel.h"
#include "state/app_state.h"

namespace zentrel::metatags {

namespace {

constexpr const char* kTagListFilter = "(*.tag)|*.tag|(*.*)|*.*|";
constexpr const char* kTagListExtension = ".tag";
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

// Only marked fields take a value; a marked field the text does not name keeps its own.
void Apply_MetaTag_List_Text(AppState& s, const std::string& content) {
  file_io::ReadListItems(content, [&s](std::string_view item) {
    auto [key, value] = app::SplitPreferenceLine(item);
    if (key.size() > 1)
      key.remove_suffix(1);
    int16_t index = decode::Find_MetaTag_Index(s, std::string(key));
    if (index < 0)
      return;
    // "title" and "zentrel" have no field: their check-box lookup is out of range.
    if (At(s.Form.MetaTag_Selection_CheckBox, index) != 1)
      return;
    Set_MetaTag_TextBox(s, index, text::ReplaceAll(value, kComma, ","));
  });
}

void Save_MetaTag_List(AppState& s) {
  state::FileDialog dialog{"", kTagListFilter, 1, kTagListExtension};
  if (!s.platform->ShowSave(dialog) || dialog.FileName.empty())
    return;
  file_io::WriteFileAtomic(dialog.FileName, MetaTag_List_Text(s), *s.files);
}

void Load_MetaTagList(AppState& s) {
  state::FileDialog dialog{"", kTagListFilter, 1, kTagListExtension};
  if (!s.platform->ShowOpen(dialog) || dialog.FileName.empty() ||
      !file_io::FileExists(dialog.FileName))
    return;
  Apply_MetaTag_List_Text(s, file_io::ReadWholeFile(dialog.FileName));
}

}  // namespace zentrel::metatags

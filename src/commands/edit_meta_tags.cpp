#include "commands/edit_meta_tags.h"

#include "base/file_io.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "commands/checks.h"
#include "commands/page_saving.h"
#include "decode/meta_tag_table.h"
#include "metatags/tag_list_file.h"
#include "state/app_state.h"

namespace zentrel::commands {

namespace {

std::string LengthHoverText(size_t length) {
  return "This Field is" + text::SignedNumber(static_cast<int64_t>(length)) + " Characters Long";
}

bool Marked(const AppState& s, int16_t i) {
  return At(s.Form.MetaTag_Selection_CheckBox, i) == 1;
}

void SetAllMarks(AppState& s, int16_t value) {
  for (int16_t i = 0; i < s.EditableMetaTagCount; ++i)
    At(s.Form.MetaTag_Selection_CheckBox, i) = value;
}

}  // namespace

void Set_MetaTag_TextBox(AppState& s, int16_t i, const std::string& text) {
  At(s.Form.MetaTag_TextBox, i) = text;
  MetaTag_TextBox_Change(s, i);
}

void Set_Metatag_Page_TextBoxes(AppState& s) {
  for (int16_t i = 0; i < s.EditableMetaTagCount; ++i) {
    Set_MetaTag_TextBox(s, i, At(s.MetaTags, i).MetaTagValue);
    Set_MetaTag_TextBox_ToolTip(s, i);
  }
  // The field shows the analysis's keyword list. A list of one entry leaves it empty: the
  // last entry is written only after a separator.
  const int32_t n = s.KeywordCount;
  const std::string separator = s.EncodeComaSpaceBetweenKeywords == 1 ? ", " : ",";
  std::string keywords;
  for (int32_t k = 0; k <= n - 2; ++k)
    keywords += At(s.KeywordList, k) + separator;
  if (n > 1)
    keywords += At(s.KeywordList, n - 1);
  const int16_t field = decode::Find_MetaTag_Index(s, "keywords");
  Set_MetaTag_TextBox(s, field, keywords);
  Set_MetaTag_TextBox_ToolTip(s, field);
}

void Set_MetaTag_TextBox_ToolTip(AppState& s, int16_t i) {
  const size_t length = At(s.Form.MetaTag_TextBox, i).size();
  At(s.Form.MetaTag_TextBox_ToolTip, i) = length < 1 ? std::string() : LengthHoverText(length);
}

void MetaTag_TextBox_Change(AppState& s, int16_t i) {
  // Unlike the tooltip routine, an empty field still reads "0 Characters Long" here.
  At(s.Form.MetaTag_TextBox_ToolTip, i) = LengthHoverText(At(s.Form.MetaTag_TextBox, i).size());
  Show_MetaTag_Length(s, i);
}

void MetaTagFunctions_ReThreadDocument_Click(AppState& s) {
  HTML_ENCODE_Document(s, "Testing", 1);
}

void Picture2_Click(AppState& s) {
  HTML_ENCODE_Document(s, s.CurrentFileName, 0);
}

void MetaTagFunctions_MArk_ALL_Checkboxes_Click(AppState& s) {
  SetAllMarks(s, 1);
}

void MetaTagFunctions_UnMArk_ALL_Checkboxes_Click(AppState& s) {
  SetAllMarks(s, 0);
}

void MetaTagFunctions_LoadMarked_Click(AppState& s) {
  Load_MetaTagList(s);
}

void MetaTagFunctions_SaveMarked_Click(AppState& s) {
  Save_MetaTag_List(s);
}

void MetaTagFunctions_ClearALL_Click(AppState& s) {
  for (int16_t i = 0; i < s.EditableMetaTagCount; ++i)
    Set_MetaTag_TextBox(s, i, "");
}

void MetaTagFunctions_ClearMarked_Click(AppState& s) {
  for (int16_t i = 0; i < s.EditableMetaTagCount; ++i) {
    if (Marked(s, i))
      Set_MetaTag_TextBox(s, i, "");
  }
}

void MetaTagFunctions_CopyMarkedToClip_Click(AppState& s) {
  for (int16_t i = 0; i < s.EditableMetaTagCount; ++i) {
    if (Marked(s, i))
      At(s.metaTagClipSlots, i) = At(s.Form.MetaTag_TextBox, i);
  }
}

void MetaTagFunctions_PasteClipToMarked_Click(AppState& s) {
  for (int16_t i = 0; i < s.EditableMetaTagCount; ++i) {
    if (Marked(s, i))
      Set_MetaTag_TextBox(s, i, At(s.metaTagClipSlots, i));
  }
}

void Save_MetaTag_List(AppState& s) {
  state::FileDialog dialog{"", metatags::kTagListFilter, 1, metatags::kTagListExtension};
  if (!s.platform->ShowSave(dialog) || dialog.FileName.empty())
    return;
  file_io::WriteFileAtomic(dialog.FileName, metatags::MetaTag_List_Text(s), *s.files);
}

void Load_MetaTagList(AppState& s) {
  state::FileDialog dialog{"", metatags::kTagListFilter, 1, metatags::kTagListExtension};
  if (!s.platform->ShowOpen(dialog) || dialog.FileName.empty() ||
      !file_io::FileExists(dialog.FileName))
    return;
  Apply_MetaTag_List_Text(s, file_io::ReadWholeFile(dialog.FileName));
}

// Only marked fields take a value. "title" and "zentrel" have no field: their check-box
// lookup is out of range.
void Apply_MetaTag_List_Text(AppState& s, std::string_view content) {
  for (const auto& [index, value] : metatags::Read_MetaTag_List(s, content)) {
    if (At(s.Form.MetaTag_Selection_CheckBox, index) == 1)
      Set_MetaTag_TextBox(s, index, value);
  }
}

}  // namespace zentrel::commands

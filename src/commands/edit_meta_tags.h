#pragma once
// The "Edit Meta Tags" tab: the thirteen fields with their marks and hover texts, the private
// clip slots, the panel's buttons, META tag list files, "Rebuild Page" and the save button.

#include <cstdint>
#include <string>
#include <string_view>

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

// Writes field i and runs MetaTag_TextBox_Change for it, whoever assigns the text.
void Set_MetaTag_TextBox(AppState& s, int16_t i, const std::string& text);
void Set_Metatag_Page_TextBoxes(AppState& s);
void Set_MetaTag_TextBox_ToolTip(AppState& s, int16_t i);
void MetaTag_TextBox_Change(AppState& s, int16_t i);

void MetaTagFunctions_ReThreadDocument_Click(AppState& s);  // "Rebuild Page"
void Picture2_Click(AppState& s);                           // save over the loaded file
void MetaTagFunctions_MArk_ALL_Checkboxes_Click(AppState& s);
void MetaTagFunctions_UnMArk_ALL_Checkboxes_Click(AppState& s);
void MetaTagFunctions_LoadMarked_Click(AppState& s);
void MetaTagFunctions_SaveMarked_Click(AppState& s);
void MetaTagFunctions_ClearALL_Click(AppState& s);
void MetaTagFunctions_ClearMarked_Click(AppState& s);
void MetaTagFunctions_CopyMarkedToClip_Click(AppState& s);
void MetaTagFunctions_PasteClipToMarked_Click(AppState& s);

void Save_MetaTag_List(AppState& s);
void Load_MetaTagList(AppState& s);
// Reads a META tag list's text into the marked fields (the dialog-free half of loading,
// shared with the command line); a marked field the text does not name keeps its own.
void Apply_MetaTag_List_Text(AppState& s, std::string_view content);

}  // namespace zentrel::commands

#pragma once
// The thirteen META tag fields of "Edit Meta Tags", their marks, hover texts, the private
// clip slots and the panel's buttons.

#include <array>
#include <cstdint>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::metatags {

// Writes field i and runs MetaTag_TextBox_Change for it, whoever assigns the text.
void Set_MetaTag_TextBox(AppState& s, int16_t i, const std::string& text);
void Set_Metatag_Page_TextBoxes(AppState& s);
void Set_MetaTag_TextBox_ToolTip(AppState& s, int16_t i);
void MetaTag_TextBox_Change(AppState& s, int16_t i);

void MetaTagFunctions_ReThreadDocument_Click(AppState& s);
void MetaTagFunctions_MArk_ALL_Checkboxes_Click(AppState& s);
void MetaTagFunctions_UnMArk_ALL_Checkboxes_Click(AppState& s);
void MetaTagFunctions_LoadMarked_Click(AppState& s);
void MetaTagFunctions_SaveMarked_Click(AppState& s);
void MetaTagFunctions_ClearALL_Click(AppState& s);
void MetaTagFunctions_ClearMarked_Click(AppState& s);
void MetaTagFunctions_CopyMarkedToClip_Click(AppState& s);
void MetaTagFunctions_PasteClipToMarked_Click(AppState& s);

}  // namespace zentrel::metatags

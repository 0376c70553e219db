#pragma once
// Rebuilding the page with the panel's META tags: the old TITLE and known META tags blanked,
// a fresh header block written just inside the head, the result saved and loaded back.

#include <cstdint>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::metatags {

inline constexpr const char* kTempDataFileName = "Zentrel_TempData.tmp";

std::string Build_Meta_Tag(const AppState& s, const std::string& content, const std::string& name);
// True when the page was written and loaded back; false when nothing was changed (empty name or
// document, or No to the WARNING question).
bool HTML_ENCODE_Document(AppState& s, const std::string& fileName, int16_t rebuildFlag);

void MetaTagEncodePref_SwapContentAndNameOrder_CheckBox_Click(AppState& s);
void MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox_Click(AppState& s);
void TagsOption_USE_META_TITLE_Click(AppState& s);
void Check2_Click(AppState& s);

}  // namespace zentrel::metatags

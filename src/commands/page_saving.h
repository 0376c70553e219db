#pragma once
// The save path: every save and every rebuild runs the page encoder, writes its result
// (the target file, or the rebuild's carrier file) and makes it the current document.

#include <cstdint>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

inline constexpr const char* kTempDataFileName = "Zentrel_TempData.tmp";

// True when the page was written and is the current document; false when nothing was changed
// (empty name or document, or No to the WARNING question).
bool HTML_ENCODE_Document(AppState& s, const std::string& fileName, int16_t rebuildFlag);
void Do_save(AppState& s);
std::string Do_Select_Save_File(AppState& s, const std::string& fileName, const std::string& filter,
                                int16_t filterIndex, const std::string& defaultExt);

}  // namespace zentrel::commands

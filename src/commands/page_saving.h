#pragma once
// The save path: every save and every rebuild runs the page encoder, writes its result
// (the target file, or the rebuild's carrier file) and makes it the current document.

#include <cstdint>
#include <optional>
#include <string>

#include "metatags/head_diff.h"

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

inline constexpr const char* kTempDataFileName = "Zentrel_TempData.tmp";

// True when the page was written and is the current document; false when nothing was changed
// (empty name or document, No to the WARNING question, Cancel to the changes shown). A save
// (flag 0) shows what it changes first when SaveShowChanges is on, and keeps the file it
// replaces as FILE.bak when SaveKeepBackup is on.
bool HTML_ENCODE_Document(AppState& s, const std::string& fileName, int16_t rebuildFlag);
// What a save would change, found as a save finds it (the same section check and WARNING
// question) while nothing is written and the page stays as it was; nullopt when the page is
// empty or the WARNING was answered No.
std::optional<metatags::HeadDiff> Preview_Save(AppState& s);
void Do_save(AppState& s);
std::string Do_Select_Save_File(AppState& s, const std::string& fileName, const std::string& filter,
                                int16_t filterIndex, const std::string& defaultExt);

}  // namespace zentrel::commands

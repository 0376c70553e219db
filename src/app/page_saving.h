#pragma once
// Saving pages: every save runs the page encoder with the target path.

#include <cstdint>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::app {

void mnu_File_SAVE_Click(AppState& s);
void Picture2_Click(AppState& s);
void mnu_File_SAVESA_Click(AppState& s);
void Do_save(AppState& s);
std::string Do_Select_Save_File(AppState& s, const std::string& fileName, const std::string& filter,
                                int16_t filterIndex, const std::string& defaultExt);

}  // namespace zentrel::app

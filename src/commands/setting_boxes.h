#pragma once
// The controls of the settings, driven by the settings table: filling every box from its
// setting, and taking a box's value back into its setting when the user changes it.

#include <cstdint>
#include <string>

#include "state/settings.h"

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

// Copies every setting into its control, in the table's order: the check boxes, the refilled
// minimum-matches list and the word delimiter box. It writes controls only.
void SET_CHeck_boxes(AppState& s);
// A click on a setting's check box: the box's value (0 or 1) becomes the setting, and nothing
// else happens; the next analysis or rebuild reads it.
void Setting_Box_Click(AppState& s, const state::Setting& setting);
void Setting_Box_Click(AppState& s, int16_t state::FormModel::*checkBox);
// A change of a setting's text box: its text becomes the setting.
void Setting_Text_Box_Change(AppState& s, std::string state::FormModel::*textBox);

}  // namespace zentrel::commands

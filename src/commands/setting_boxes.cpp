#include "commands/setting_boxes.h"

#include "base/text.h"
#include "state/app_state.h"

namespace zentrel::commands {

namespace {

constexpr int kMaxMinMatches = 99;

// The numbers 1 to 99 (" 1 Match", " 2 Matches", ...); the one of the setting is current.
void Fill_Matches_List(state::DropDown& box, int16_t current) {
  box.List.clear();
  box.Text.clear();
  for (int n = 1; n <= kMaxMinMatches; ++n) {
    box.List.push_back(text::SignedNumber(n) + (n == 1 ? " Match" : " Matches"));
    if (n == current)
      box.Text = box.List.back();
  }
}

}  // namespace

void SET_CHeck_boxes(AppState& s) {
  for (const state::Setting& row : state::Settings()) {
    if (row.CheckBox) {
      s.Form.*row.CheckBox = s.*row.Flag;
    } else if (row.MatchesList) {
      Fill_Matches_List(s.Form.*row.MatchesList, s.*row.Flag);
    } else if (row.TextBox) {
      s.Form.*row.TextBox = s.*row.Text;
      Setting_Text_Box_Change(s, row.TextBox);
    }
  }
}

void Setting_Box_Click(AppState& s, const state::Setting& setting) {
  s.*setting.Flag = s.Form.*setting.CheckBox;
}

void Setting_Box_Click(AppState& s, int16_t state::FormModel::*checkBox) {
  Setting_Box_Click(s, state::Setting_Of(checkBox));
}

void Setting_Text_Box_Change(AppState& s, std::string state::FormModel::*textBox) {
  s.*state::Setting_Of(textBox).Text = s.Form.*textBox;
}

}  // namespace zentrel::commands

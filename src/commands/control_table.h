#pragma once
// One table from control names to their handlers: the window, the GUI tests and the command
// line all dispatch through it. Dispatch shows a run-time or file error in a message box and
// returns, so no command can end the program.

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

struct Control {
  std::string Name;  // the control's name, e.g. "MetaTagFunctions_ClearALL"
  std::function<void(AppState&)> Handler;
};

const std::vector<Control>& Control_Table();
// Runs the handler of the named control; false when no control has that name.
bool Dispatch(AppState& s, std::string_view name);
// Runs any command the same guarded way: a run-time error, a file error or a failed allocation
// ends the command and is shown; its message is returned (nothing when the command ran to its
// end).
std::optional<std::string> Run_Guarded(AppState& s, const std::function<void(AppState&)>& command);

}  // namespace zentrel::commands

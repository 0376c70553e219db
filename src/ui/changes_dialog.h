#pragma once
// The question before a save: what the save changes in the page (a line diff, "-" removed,
// "+" added), the tags that disappear named above it, and Save / Cancel.

#include <string>
#include <vector>

class QWidget;

namespace zentrel::ui {

// True for Save. The diff's bytes are shown in their own codec (UTF-8 when valid).
bool Confirm_Changes(QWidget* owner, const std::string& diffText,
                     const std::vector<std::string>& vanishingTags);

}  // namespace zentrel::ui

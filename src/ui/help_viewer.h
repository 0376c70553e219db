#pragma once
// The help page in a viewer of the program's own, for a system where no browser opens it.

class QString;
class QWidget;

namespace zentrel::ui {

// Shows the page, or, when it cannot be read, a message that names its path.
void Show_Help_Page(QWidget* owner, const QString& path);

}  // namespace zentrel::ui

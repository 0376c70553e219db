#pragma once
// The length of the title or the description field ("52 chars, 480 px"), coloured against the
// checks' profile: the warning colour when wider than it allows, the notice colour when
// shorter than it asks.

#include <QColor>
#include <cstddef>

#include "ui/controls.h"

namespace zentrel::ui {

inline const QColor kOverColour(0xB0, 0x50, 0x00);
inline const QColor kUnderColour(0x1F, 0x5F, 0xBF);

// index 0 is the title's label, 1 the description's.
QLabel* MakeLengthLabel(View& v, QWidget* parent, std::size_t index);

}  // namespace zentrel::ui

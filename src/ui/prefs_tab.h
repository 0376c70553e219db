#pragma once
// "Prefs": the filter dictionary and the decoder, encoder and environment preferences.

#include <QWidget>

#include "ui/controls.h"

namespace zentrel::ui {

class PrefsTab : public QWidget {
 public:
  PrefsTab(View& v, QWidget* parent);
};

}  // namespace zentrel::ui

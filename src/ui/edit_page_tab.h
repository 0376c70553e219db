#pragma once
// "Edit Page": the page source and its search.

#include <QWidget>

#include "ui/controls.h"

class QLineEdit;

namespace zentrel::ui {

class EditPageTab : public QWidget {
 public:
  EditPageTab(View& v, QWidget* parent);
  QLineEdit* SearchBox() const { return search_; }

 private:
  QLineEdit* search_;
};

}  // namespace zentrel::ui

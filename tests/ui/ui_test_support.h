#pragma once
// Shared by the view's tests: one QApplication on the offscreen platform, and a lookup of
// controls by name that fails the test loudly when a control is missing.

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <stdexcept>
#include <string>

namespace zentrel::testing {

// The application of every view test; it is created before the first test and deleted after
// the last, while Qt's own statics still live.
QApplication& App();

struct MissingControl : std::runtime_error {
  using std::runtime_error::runtime_error;
};

template <class T = QWidget>
T* Find(const QObject* root, const std::string& name) {
  T* found = root->findChild<T*>(QString::fromStdString(name));
  if (!found) {
    ADD_FAILURE() << "no control named " << name;
    throw MissingControl(name);
  }
  return found;
}

// Types text into a widget as key presses do, accented letters included.
inline void Type(QWidget* w, const QString& text) {
  for (QChar c : text) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
    QApplication::sendEvent(w, &press);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, QString(c));
    QApplication::sendEvent(w, &release);
  }
}

}  // namespace zentrel::testing

// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "session/archive/saved_site.h"
#include "support/desktop/key_press.h"

namespace rbt::test {

/// A dialog of saved tallies over the small site, worked by its keys.
template <typename Dialog>
class DialogDriver {
 public:
  explicit DialogDriver(std::unique_ptr<Dialog> shown) : dialog(std::move(shown)) {
    dialog->show();
    dialog->activateWindow();
    Settle();
  }

  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Press(*dialog, key, modifiers);
    Settle();
  }
  /// Types into the control that has the focus, as a keyboard does.
  void Type(const std::string& text) {
    for (const QChar c : QString::fromStdString(text)) {
      QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
      QApplication::sendEvent(dialog->focusWidget(), &press);
    }
    Settle();
  }
  void Paste(const std::string& text) {
    static_cast<QLineEdit*>(dialog->focusWidget())->insert(QString::fromStdString(text));
    Settle();
  }

  QPushButton* Button(const char* name) const { return dialog->template findChild<QPushButton*>(name); }
  QLineEdit* Box(const char* name) const { return dialog->template findChild<QLineEdit*>(name); }
  QListWidget* List() const { return dialog->template findChild<QListWidget*>("List1"); }
  std::string Text(const char* box) const { return Box(box)->text().toStdString(); }
  std::string Label(const char* name) const {
    return dialog->template findChild<QLabel*>(name)->text().toStdString();
  }
  std::string Entries() const {
    std::string entries;
    for (int row = 0; row < List()->count(); ++row) entries += List()->item(row)->text().toStdString() + "|";
    return entries;
  }
  std::string Focused() const {
    return dialog->focusWidget() == nullptr ? "" : dialog->focusWidget()->objectName().toStdString();
  }
  bool Shows(const char* name) const { return dialog->template findChild<QWidget*>(name)->isVisible(); }

  std::unique_ptr<Dialog> dialog;
};

}  // namespace rbt::test

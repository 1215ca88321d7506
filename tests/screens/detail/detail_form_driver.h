// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/grid_control.h"
#include "screens/detail/detail_form.h"
#include "session/detail/detail_presenter_driver.h"
#include "support/desktop/key_press.h"

namespace rbt::test {

/// The purchase list over the small site of `Detailed`, worked by its keys.
class ZaimeiDriver : public Detailed {
 public:
  using Detailed::Detailed;

  void OpenForm() {
    told_before_form_ = site.Messages().size();
    form = std::make_unique<DetailForm>(counted, parts);
    form->show();
    form->activateWindow();
    Settle();
  }
  void OpenForCorrection() {
    OpenForm();
    Key(Qt::Key_F2);
  }

  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Press(*form, key, modifiers);
    Settle();
  }
  /// A key in the box of a cell, which stands in the grid.
  void KeyInEditor(int key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(QApplication::focusWidget(), &press);
    Settle();
  }
  /// Types into the control that has the focus, as a keyboard does.
  void Type(const std::string& text) {
    for (const QChar c : QString::fromStdString(text)) {
      QWidget* target = QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : form.get();
      const int key = c.unicode() < 128 ? int{c.toUpper().unicode()} : int{Qt::Key_unknown};
      QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(c));
      QApplication::sendEvent(target, &press);
    }
    Settle();
  }
  void Click(const char* button) {
    Button(button)->click();
    Settle();
  }
  void FocusOn(const char* control) {
    form->findChild<QWidget*>(control)->setFocus();
    Settle();
  }

  QPushButton* Button(const char* name) const { return form->findChild<QPushButton*>(name); }
  QLineEdit* Box(const char* name) const { return form->findChild<QLineEdit*>(name); }
  std::string BoxText(const char* name) const { return Box(name)->text().toStdString(); }
  GridControl* Grid() const { return static_cast<GridControl*>(form->findChild<QTableView*>("dbgZaimei")); }
  std::string Cell(int line, int column) const { return Grid()->Cell(line, column); }
  /// "line column" of the current cell.
  std::string Current() const {
    const QModelIndex at = Grid()->currentIndex();
    return std::to_string(at.row()) + " " + std::to_string(at.column());
  }
  std::vector<std::string> Captions() const {
    std::vector<std::string> captions;
    for (int column = 0; column < Grid()->model()->columnCount(); ++column) {
      captions.push_back(Grid()->model()->headerData(column, Qt::Horizontal).toString().toStdString());
    }
    return captions;
  }
  bool Shows(const char* name) const { return form->findChild<QWidget*>(name)->isVisible(); }
  std::string Label(const char* name) const { return form->findChild<QLabel*>(name)->text().toStdString(); }
  std::string Focused() const {
    return form->focusWidget() == nullptr ? "" : form->focusWidget()->objectName().toStdString();
  }
  /// The main buttons that can be pressed, by their names.
  std::string Pressable() const {
    std::string names;
    for (const DetailButtonRow& row : DetailButtons()) {
      const QPushButton* button = Button(std::string(row.control).c_str());
      if (button->isVisible() && button->isEnabled())
        names.append(names.empty() ? "" : " ").append(row.control);
    }
    return names;
  }
  /// The messages since the form was opened.
  std::vector<ShownMessage> Told() const {
    return {site.Messages().begin() + static_cast<std::ptrdiff_t>(told_before_form_), site.Messages().end()};
  }

  std::unique_ptr<DetailForm> form;

 private:
  std::size_t told_before_form_ = 0;
};

inline constexpr const char* kMainButtons =
    "cmdPercent cmdHonsuu cmdTeisei cmdMeisaiPrint cmdSave cmdLoad cmdMent cmdExit";

}  // namespace rbt::test

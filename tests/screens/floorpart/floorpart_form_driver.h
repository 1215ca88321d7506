// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "desktop/grid_control.h"
#include "screens/floorpart/floorpart_form.h"
#include "session/floorpart/floorpart_site.h"
#include "support/desktop/key_press.h"

namespace rbt::test {

inline const FloorPartScreen* const kBothForms[] = {&kFloorScreen, &kPartScreen};

/// The floor or part form over the small site, worked by its keys.
class FloorPartDriver {
 public:
  explicit FloorPartDriver(const FloorPartScreen& screen) : screen_(screen) {
    parts.choose_kinds = [this] { ++kind_dialogs; };
    parts.choose_forms = [this] { ++form_dialogs; };
    parts.print = [this](const FloorPartOrder& order) {
      printed += std::string(order.form.word);
      if (order.form.document_of != DocumentOf::result) printed += " " + std::to_string(order.floor_or_part);
      printed += "|";
    };
  }

  void Open() {
    FloorPartSite::Load();
    form = std::make_unique<FloorPartForm>(screen_, parts);
    form->show();
    form->activateWindow();
    Settle();
  }
  /// All floors by their keys.
  void OpenWithResult() {
    Open();
    Key(Qt::Key_F2);
    Key(Qt::Key_F1);
  }
  void OpenForCorrection() {
    OpenWithResult();
    site.Answer(MessageAnswer::no);
    Key(Qt::Key_F5);
  }

  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Press(*form, key, modifiers);
    Settle();
  }
  /// Types into the control that has the focus, as a keyboard does.
  void Type(const std::string& text) {
    for (const char c : text) {
      QWidget* target = QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : form.get();
      QKeyEvent press(QEvent::KeyPress, c >= 'a' ? Qt::Key_A + (c - 'a') : c, Qt::NoModifier,
                      QString(QChar(c)));
      QApplication::sendEvent(target, &press);
    }
    Settle();
  }
  void Click(const char* button) {
    Button(button)->click();
    Settle();
  }

  QPushButton* Button(const char* name) const { return form->findChild<QPushButton*>(name); }
  QLineEdit* Box(const char* name) const { return form->findChild<QLineEdit*>(name); }
  std::string Boxes() const {
    return (Box("txtStartKai")->text() + "|" + Box("txtEndKai")->text()).toStdString();
  }
  GridControl* Grid() const {
    return static_cast<GridControl*>(
        form->findChild<QTableView*>(screen_.kind == TallyKind::floor ? "dbgKai" : "dbgBui"));
  }
  std::string Cell(int row, int column) const { return Grid()->Cell(row, column); }
  /// "row column" of the current cell.
  std::string Current() const {
    const QModelIndex at = Grid()->currentIndex();
    return std::to_string(at.row()) + " " + std::to_string(at.column());
  }
  bool Shows(const char* name) const { return form->findChild<QWidget*>(name)->isVisible(); }
  std::string Label(const char* name) const { return form->findChild<QLabel*>(name)->text().toStdString(); }
  std::string Focused() const {
    return form->focusWidget() == nullptr ? "" : form->focusWidget()->objectName().toStdString();
  }
  std::string Message() const { return site.Messages().empty() ? "" : site.Messages().back().text; }

  FloorPartSite site;
  FloorPartParts parts;
  int kind_dialogs = 0;
  int form_dialogs = 0;
  std::string printed;  ///< words of the sheets, with their floor or part
  std::unique_ptr<FloorPartForm> form;

 private:
  const FloorPartScreen& screen_;
};

}  // namespace rbt::test

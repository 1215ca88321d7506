// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/grid_control.h"
#include "screens/result/result_form.h"
#include "session/result/result_site.h"
#include "support/desktop/key_press.h"

namespace rbt::test {

/// The bulk result screen over a small site: a deformed bar, a welded hoop, an anchored bar, a thin bar.
class ResultFormDriver {
 public:
  explicit ResultFormDriver(std::int32_t start_mode = kNoStartMode) : start_mode_(start_mode) {}

  void Open(const ResultScreen& screen = kBulkScreen) {
    ResultSite::Load(start_mode_);
    form = std::make_unique<ResultForm>(screen, parts);
    form->show();
    form->activateWindow();
    Settle();
  }

  void Key(int key) {
    Press(*form, key);
    Settle();
  }
  void Click(const char* button) {
    Button(button)->click();
    Settle();
  }
  void Type(const char* box, const std::string& text) {
    for (const char c : text) {
      QKeyEvent press(QEvent::KeyPress, c >= '0' && c <= '9' ? Qt::Key_0 + (c - '0') : Qt::Key_A,
                      Qt::NoModifier, QString(QChar(c)));
      QApplication::sendEvent(Box(box), &press);
    }
  }

  QPushButton* Button(const char* name) const { return form->findChild<QPushButton*>(name); }
  QLineEdit* Box(const char* name) const { return form->findChild<QLineEdit*>(name); }
  GridControl* Grid() const { return static_cast<GridControl*>(form->findChild<QTableView*>("dbgJS")); }
  bool Shows(const char* name) const { return form->findChild<QWidget*>(name)->isVisible(); }
  std::string Label(const char* name) const { return form->findChild<QLabel*>(name)->text().toStdString(); }
  std::string Focused() const {
    return form->focusWidget() == nullptr ? "" : form->focusWidget()->objectName().toStdString();
  }
  /// The row of the grid whose first cell ends in `label`, as one text; empty when there is none.
  std::string Row(const std::string& label) const {
    for (int row = 0; row < Grid()->RowCount(); ++row) {
      if (!Grid()->Cell(row, 0).ends_with(label)) continue;
      std::string text;
      for (int column = 1; column < 6; ++column) text += Grid()->Cell(row, column) + "|";
      return text;
    }
    return "";
  }

  ResultSite site;
  ResultParts parts;
  std::unique_ptr<ResultForm> form;

 private:
  std::int32_t start_mode_;
};

}  // namespace rbt::test

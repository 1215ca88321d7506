// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/grid_control.h"
#include "screens/result/result_form.h"
#include "session/startup/startup.h"
#include "support/desktop/key_press.h"
#include "support/site_fixture.h"

namespace rbt::test {

/// The bulk result screen over a small site: a deformed bar, a welded hoop, an anchored bar, a thin bar.
class ResultFormDriver {
 public:
  explicit ResultFormDriver(std::int32_t start_mode = -1) {
    site.AddRows({Bar(19, 1, 3), Bar(13, 87, 3), Bar(25, 138, 3), Bar(9, 2, 3)});
    options_.start_mode = TraitsOfStartMode(start_mode);
  }

  static Cells Bar(std::int64_t diameter, std::int64_t shape, std::int64_t welds) {
    return {{"太さ", diameter},
            {"形状No", shape},
            {"本数", std::int64_t{10}},
            {"ヶ所", std::int64_t{1}},
            {"合計", std::int64_t{10}},
            {"伸切寸", std::int64_t{6000}},
            {"伸定尺", 6.0},
            {"伸本定", std::int64_t{1}},
            {"伸総計", std::int64_t{10}},
            {"圧接", welds}};
  }

  void Open(const ResultScreen& screen = kBulkScreen) {
    LoadSite(options_);
    ActivateMenu(options_);
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

  SiteFixture site;
  ResultParts parts;
  std::unique_ptr<ResultForm> form;

 private:
  StartOptions options_;
};

}  // namespace rbt::test

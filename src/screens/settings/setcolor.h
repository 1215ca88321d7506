// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include <QWidget>

namespace Ui {
class SETCOLOR;
}

namespace rbt {

class ColourBox;

/// The two colours of every second grid row, read from `STEEL.INI` and written there by `btnRejist` alone.
class SETCOLOR : public QWidget {
 public:
  SETCOLOR();
  ~SETCOLOR() override;

  /// Every key of the form, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  void picRowColor_Click();
  void picForeColor_Click();
  void btnRejist_Click();
  void btnExit_Click();

 private:
  void ChooseColour(ColourBox& box);

  std::unique_ptr<Ui::SETCOLOR> ui_;
};

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QWidget>

#include "screens/selection/tick_boxes.h"

namespace Ui {
class setZai;
}

namespace rbt {

/// The window of the material kinds. Only its button ends it: a tally without any kind is nothing, so that
/// there is no way round the choice.
class setZai : public QWidget {
 public:
  setZai();
  ~setZai() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Show();

  KindChoice choice_;
  std::unique_ptr<Ui::setZai> ui_;
  TickBoxes kinds_;
};

}  // namespace rbt

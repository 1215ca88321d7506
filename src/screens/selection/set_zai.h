// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QWidget>

#include "screens/selection/tick_boxes.h"

namespace Ui {
class setZai;
}

namespace rbt {

/// The material kinds and the Ulbon lines that a tally takes in. It opens on the selection and only
/// `Command1` ends it: a tally without any kind is nothing, so that there is no way round the choice.
class setZai : public QWidget {
 public:
  setZai();
  ~setZai() override;

  void Command1_Click();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  std::unique_ptr<Ui::setZai> ui_;
  TickBoxes kinds_;
};

}  // namespace rbt

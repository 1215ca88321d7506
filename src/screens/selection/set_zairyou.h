// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QWidget>

#include "screens/selection/tick_boxes.h"

namespace Ui {
class setZairyou;
}

namespace rbt {

/// The material forms that a tally takes in. It opens on the selection and changes it with `Command1`; closed
/// otherwise it leaves the selection as it is.
class setZairyou : public QWidget {
 public:
  setZairyou();
  ~setZairyou() override;

  void Command1_Click();

 private:
  std::unique_ptr<Ui::setZairyou> ui_;
  TickBoxes forms_;
};

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QWidget>

#include "screens/selection/tick_boxes.h"

namespace Ui {
class setZairyou;
}

namespace rbt {

/// The window of the material forms. Closed without its button it leaves the selection as it is.
class setZairyou : public QWidget {
 public:
  setZairyou();
  ~setZairyou() override;

 private:
  void Show();

  FormChoice choice_;
  std::unique_ptr<Ui::setZairyou> ui_;
  TickBoxes forms_;
};

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QWidget>

#include "screens/selection/tick_boxes.h"

namespace Ui {
class setZaiKaiBui;
}

namespace rbt {

/// The window of the material kinds of the floor and part screens. Only its button ends it, as with `setZai`.
class setZaiKaiBui : public QWidget {
 public:
  setZaiKaiBui();
  ~setZaiKaiBui() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Show();

  FloorPartKindChoice choice_;
  std::unique_ptr<Ui::setZaiKaiBui> ui_;
  TickBoxes kinds_;
};

}  // namespace rbt

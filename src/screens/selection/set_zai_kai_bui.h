// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QWidget>

#include "screens/selection/tick_boxes.h"

namespace Ui {
class setZaiKaiBui;
}

namespace rbt {

/// The material kinds of the floor and part screens, or Ulbon alone. It opens on the selection and only
/// `Command1` ends it, as with `setZai`.
class setZaiKaiBui : public QWidget {
 public:
  setZaiKaiBui();
  ~setZaiKaiBui() override;

  void Option1_Click();
  void Command1_Click();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  std::unique_ptr<Ui::setZaiKaiBui> ui_;
  TickBoxes kinds_;
};

}  // namespace rbt

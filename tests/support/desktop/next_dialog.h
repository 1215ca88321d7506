// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>

#include <QApplication>
#include <QListWidget>
#include <QTimer>

#include "support/desktop/key_press.h"

namespace rbt::test {

/// Does something with the next dialog that comes up, once it is shown.
class WithNextDialog {
 public:
  explicit WithNextDialog(std::function<void(QWidget&)> act) {
    timer_.setInterval(5);
    QObject::connect(&timer_, &QTimer::timeout, [this, act = std::move(act)] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog == nullptr || !dialog->isVisible()) return;
      timer_.stop();
      met = dialog->objectName().toStdString();
      act(*dialog);
    });
    timer_.start();
  }

  std::string met;

 private:
  QTimer timer_;
};

/// `SaveFiles`: under the name that it proposes.
inline void SaveAsProposed(QWidget& dialog) { Press(dialog, Qt::Key_F1); }

/// `LoadFiles`: the newest of its list.
inline void LoadTheFirst(QWidget& dialog) {
  dialog.findChild<QListWidget*>("List1")->item(0)->setSelected(true);
  Press(dialog, Qt::Key_F1);
}

}  // namespace rbt::test

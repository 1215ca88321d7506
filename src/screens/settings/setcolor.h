// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QWidget>

#include "session/settings/colours_presenter.h"

namespace Ui {
class SETCOLOR;
}

namespace rbt {

/// The window of the two colours of every second grid row.
class SETCOLOR : public QWidget {
 public:
  SETCOLOR();
  ~SETCOLOR() override;

  /// Every key of the form, of the Qt::Key enumeration.
  static std::vector<int> Keys();

 private:
  void Show();

  ColoursPresenter presenter_;
  std::unique_ptr<Ui::SETCOLOR> ui_;
};

}  // namespace rbt

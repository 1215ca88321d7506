// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QWidget>

namespace rbt {

/// One state in which a form is looked at and tested.
struct FormState {
  std::string name;                     ///< part of a picture's file name: "start-mode-1"
  std::function<void(QWidget&)> bring;  ///< brings a form that was just shown into the state
};

/// One form as the walk through all forms and the pictures know it.
struct FormEntry {
  std::string name;                                ///< the form's object name
  std::function<std::unique_ptr<QWidget>()> make;  ///< made and loaded, not yet shown
  std::string first_focus;                         ///< control that has the focus when the form is shown
  std::vector<int> keys;                           ///< every key of its table (Qt::Key)
  std::vector<FormState> states;                   ///< at least one; the first is the usual one
};

}  // namespace rbt

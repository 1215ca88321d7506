// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QObject>

class QKeyEvent;
class QWidget;

namespace rbt {

/// One row of a form's table: a control by its object name, its key, and what a click and the key do.
struct FormAction {
  std::string control;  ///< empty: the key alone
  int key;              ///< of the Qt::Key enumeration; 0: none
  std::function<void()> call;
};

/// When a key of the table acts. Either way it is eaten.
enum class KeysAct {
  where_the_control_can_be_pressed,  ///< in sight and in reach
  always
};

/// Wires a form by its table. What is called runs as an action of the form; a held key acts once. A check box
/// turns over by itself at a click. Shift+F1 shows the keys that act now, each with the caption and the tool
/// tip of its control.
class FormActions : public QObject {
 public:
  FormActions(QWidget& form, std::vector<FormAction> actions, KeysAct keys_act);

 private:
  bool Answer(const QKeyEvent& press) const;
  bool CanBePressed(const FormAction& action) const;
  bool Acts(const FormAction& action) const;
  void ShowKeys() const;

  QWidget& form_;
  std::vector<FormAction> actions_;
  KeysAct keys_act_;
};

}  // namespace rbt

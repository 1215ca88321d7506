// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <span>
#include <vector>

#include <QObject>

class QKeyEvent;
class QWidget;

namespace rbt {

/// One row of a form's key table: a key of the Qt::Key enumeration and what it calls.
template <typename Form>
struct KeyBinding {
  int key;
  void (Form::*handler)();
};

/// True for a press of `key` as the tables mean it: without Ctrl, Alt and Meta, and a digit that of the top
/// row, not of the keypad.
bool IsPress(const QKeyEvent& event, int key);
/// True when the key is held and this press repeats it; a held key acts once.
bool IsRepeat(const QKeyEvent& event);

/// Calls the handler that the table gives the key; false when it gives none.
template <typename Form>
bool AnswerKey(Form& form, std::span<const KeyBinding<Form>> table, const QKeyEvent& event) {
  for (const KeyBinding<Form>& binding : table) {
    if (!IsPress(event, binding.key)) continue;
    if (!IsRepeat(event)) (form.*binding.handler)();
    return true;
  }
  return false;
}

template <typename Form>
std::vector<int> KeysOf(std::span<const KeyBinding<Form>> table) {
  std::vector<int> keys;
  for (const KeyBinding<Form>& binding : table) keys.push_back(binding.key);
  return keys;
}

/// Lets a form see every key press in its window before the control that has the focus. A press that
/// `answer` takes is eaten; `answer` runs as an action of the form.
class KeyPreview : public QObject {
 public:
  using Answer = std::function<bool(const QKeyEvent&)>;
  KeyPreview(QWidget& form, Answer answer);

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  QWidget& form_;
  Answer answer_;
};

}  // namespace rbt

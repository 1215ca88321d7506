// SPDX-License-Identifier: MIT
#include "desktop/action.h"

#include <exception>
#include <string>

#include <QWidget>

#include "desktop/wait_sign.h"
#include "platform/system/message.h"
#include "shell/context/run_state.h"

namespace rbt {

namespace {

class Running {
 public:
  Running() { ++RunState.RunningActions; }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;
  ~Running() { --RunState.RunningActions; }
};

}  // namespace

bool RunAction(std::string_view title, const std::function<void()>& action) {
  const Running running;
  const WaitSign sign;
  try {
    action();
    return true;
  } catch (const std::exception& fault) {
    // Faults, and what the libraries throw: nothing may pass through the event loop.
    MsgBox(fault.what(), title);
    return false;
  }
}

bool RunAction(const QWidget& form, const std::function<void()>& action) {
  // The form may go with its action; its title is read before.
  const std::string title = form.window()->windowTitle().toStdString();
  return RunAction(title, action);
}

bool ActionRunning() { return RunState.RunningActions > 0; }

}  // namespace rbt

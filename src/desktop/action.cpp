// SPDX-License-Identifier: MIT
#include "desktop/action.h"

#include <exception>
#include <string>

#include <QWidget>

#include "desktop/pending_events.h"
#include "desktop/wait_sign.h"
#include "desktop/work_watch.h"
#include "platform/system/message.h"
#include "session/panels/fault_words.h"
#include "shell/context/run_state.h"

namespace rbt {

namespace {

class Running {
 public:
  Running() {
    if (RunState.RunningActions++ == 0) RunState.HasWaited = RunState.GaveUpWaiting = false;
    RunState.WorkStopped = false;
    HideWork();
  }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;
  ~Running() {
    HideWork();
    RunState.WorkStopped = outer_stopped_;
    if (RunState.RunningActions == 1 && RunState.HasWaited) {
      // What was typed while a file was waited for must not start another action. What falls due meanwhile is
      // told that this one still runs: it would be deaf.
      RunState.HasWaited = false;
      ProcessEventsWithoutInput();
    }
    --RunState.RunningActions;
  }

 private:
  bool outer_stopped_ = RunState.WorkStopped;
};

void Tell(const std::exception& fault, std::string_view title) {
  // Who gave up waiting, or stopped the work, knows that the action has ended.
  if ((RunState.GaveUpWaiting && IsOfLock(fault)) || IsOfStop(fault)) return;
  MsgBox(FaultWords(fault), title, MessageButtons::ok_to_warning);
}

}  // namespace

bool RunAction(std::string_view title, const std::function<void()>& action) {
  const Running running;
  const WaitSign sign;
  try {
    action();
    return true;
  } catch (const std::exception& fault) {
    // Faults, and what the libraries throw: nothing may pass through the event loop.
    Tell(fault, title);
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

// SPDX-License-Identifier: MIT
#include "desktop/lock_question.h"

#include <chrono>

#include <QApplication>
#include <QWidget>

#include "desktop/pending_events.h"
#include "platform/system/message.h"
#include "shell/context/run_state.h"

namespace rbt {

namespace {

using Clock = std::chrono::steady_clock;

/// How long a picture of the windows stands while the program waits.
constexpr std::chrono::milliseconds kPaintedFor{200};

/// As the user knows it: the working copy of a file that stays as it is bears that file's name.
std::string NameOf(const std::filesystem::path& file) {
  return (file.extension() == ".work" ? file.stem() : file.filename()).string();
}

}  // namespace

bool AskToWaitOn(const std::filesystem::path& file) {
  ProcessEventsWithoutInput();
  const bool ends = RunState.FaultEndsProgram;
  const std::string text =
      "「" + NameOf(file) +
      "」は、ほかのプログラムが使用しています。\n使用が終わるのを待つときは「再試行」、" +
      (ends ? "このプログラムを終わるときは「終了」" : "この操作をやめるときは「中止」") + "を押して下さい。";
  const MessageButtons buttons = ends ? MessageButtons::retry_exit : MessageButtons::retry_abort;
  RunState.GaveUpWaiting = MsgBox(text, "", buttons) != MessageAnswer::retry;
  return !RunState.GaveUpWaiting;
}

WaitHook NoteWaits() {
  return [painted = Clock::time_point()]() mutable {
    RunState.HasWaited = true;
    if (Clock::now() - painted < kPaintedFor) return;
    // No event is looked at: one of them could use the file in the midst of the statement that waits for it.
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->isVisible()) window->repaint();
    }
    painted = Clock::now();
  };
}

}  // namespace rbt

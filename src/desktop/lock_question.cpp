// SPDX-License-Identifier: MIT
#include "desktop/lock_question.h"

#include "desktop/pending_events.h"
#include "platform/system/message.h"
#include "shell/context/run_state.h"

namespace rbt {

bool AskToWaitOn(const std::filesystem::path& file) {
  ProcessEventsWithoutInput();
  const bool ends = RunState.FaultEndsProgram;
  const std::string text =
      "「" + file.filename().string() +
      "」は、ほかのプログラムが使用しています。\n使用が終わるのを待つときは「再試行」、" +
      (ends ? "このプログラムを終わるときは「終了」" : "この操作をやめるときは「中止」") + "を押して下さい。";
  const MessageButtons buttons = ends ? MessageButtons::retry_exit : MessageButtons::retry_abort;
  RunState.GaveUpWaiting = MsgBox(text, "", buttons) != MessageAnswer::retry;
  return !RunState.GaveUpWaiting;
}

void NoteWait() { RunState.HasWaited = true; }

}  // namespace rbt

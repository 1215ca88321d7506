// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace rbt {

/// The buttons of a message box and the one that was pressed. The first is the default where nothing else is
/// said.
enum class MessageButtons {
  ok,
  ok_cancel,
  yes_no,
  yes_no_default_no,
  yes_no_cancel,
  ok_to_warning,  ///< ok alone, under a warning sign, as are those below
  retry_abort,    ///< whether to go on waiting, or to give up the action; aborting is `cancel`
  retry_exit,     ///< the same, giving up the program
  /// Whether a file is taken over, `yes`, or read as it is, `no`: the default.
  import_or_read,
};
enum class MessageAnswer { ok, cancel, yes, no, retry };

/// Shows a message and waits for the answer.
MessageAnswer MsgBox(std::string_view text, std::string_view title = "",
                     MessageButtons buttons = MessageButtons::ok);

/// What shows messages: the desktop's box, or a test's script.
using MessageHandler =
    std::function<MessageAnswer(std::string_view text, std::string_view title, MessageButtons buttons)>;
/// That of the command line: one line on standard error and the default answer, ok, yes or no; nothing is
/// tried again.
MessageAnswer TellOnStandardError(std::string_view text, std::string_view title, MessageButtons buttons);

}  // namespace rbt

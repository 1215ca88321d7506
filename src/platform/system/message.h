// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace rbt {

enum class MessageButtons { ok, ok_cancel, yes_no, yes_no_cancel };
enum class MessageAnswer { ok, cancel, yes, no };

/// Shows a message and waits for the answer. Without a handler (the command line) it is one line on standard
/// error and the default answer: ok or yes.
MessageAnswer MsgBox(std::string_view text, std::string_view title = "",
                     MessageButtons buttons = MessageButtons::ok);

using MessageHandler =
    std::function<MessageAnswer(std::string_view text, std::string_view title, MessageButtons buttons)>;
/// The desktop's box, or a test's script; returns the handler that was in place.
MessageHandler SetMessageHandler(MessageHandler handler);

}  // namespace rbt

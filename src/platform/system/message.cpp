// SPDX-License-Identifier: MIT
#include "platform/system/message.h"

#include <algorithm>
#include <iostream>
#include <string>

#include "platform/system/services.h"

namespace rbt {

namespace {

MessageAnswer DefaultAnswer(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::yes_no:
    case MessageButtons::yes_no_cancel:
      return MessageAnswer::yes;
    case MessageButtons::yes_no_default_no:
    case MessageButtons::import_or_read:
      return MessageAnswer::no;
    case MessageButtons::retry_abort:
    case MessageButtons::retry_exit:
      return MessageAnswer::cancel;
    case MessageButtons::ok:
    case MessageButtons::ok_cancel:
    case MessageButtons::ok_to_warning:
      break;
  }
  return MessageAnswer::ok;
}

/// A message may break its lines for the window; on standard error it stays one line.
void WriteOneLine(std::string_view text, std::string_view title) {
  std::string line;
  if (!title.empty()) line.append(title).append(": ");
  line.append(text);
  line.erase(std::remove(line.begin(), line.end(), '\r'), line.end());
  std::replace(line.begin(), line.end(), '\n', ' ');
  line += '\n';
  std::cerr << line;
}

}  // namespace

MessageAnswer MsgBox(std::string_view text, std::string_view title, MessageButtons buttons) {
  return Services.Messages(text, title, buttons);
}

MessageAnswer TellOnStandardError(std::string_view text, std::string_view title, MessageButtons buttons) {
  WriteOneLine(text, title);
  return DefaultAnswer(buttons);
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/system/message.h"

namespace rbt {

/// Shows a message in a box over the active window: for `MsgBox`. Enter takes the focused answer (the
/// default), Esc the cautious one: cancel, else no, else ok. Runs of blanks and line breaks stand as they are
/// told.
MessageAnswer ShowMessage(std::string_view text, std::string_view title, MessageButtons buttons);

/// True while such a box is shown.
bool MessageBoxOpen();

}  // namespace rbt

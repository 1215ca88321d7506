// SPDX-License-Identifier: MIT
#include "session/panels/not_ready.h"

#include <fmt/format.h>

#include "platform/system/message.h"

namespace rbt {

void SayNotReady(std::string_view what, std::string_view title) {
  MsgBox(fmt::format("「{}」は、まだご利用いただけません。", what), title);
}

}  // namespace rbt

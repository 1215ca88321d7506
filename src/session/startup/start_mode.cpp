// SPDX-License-Identifier: MIT
#include "session/startup/start_mode.h"

#include <algorithm>

#include "data/start_mode.h"
#include "platform/numbers/number_words.h"

namespace rbt {

std::array<std::int32_t, 10> ParseStartArgs(std::string_view command_line) {
  constexpr std::size_t kWordsRead = 2;
  std::array<std::int32_t, 10> args{};
  for (std::size_t i = 0; i < kWordsRead && !command_line.empty(); ++i) {
    const std::size_t end = std::min(command_line.find(' '), command_line.size());
    const std::string_view word = command_line.substr(0, end);
    args[i] = ToInt32(LeadingNumber(word), word);
    command_line.remove_prefix(std::min(end + 1, command_line.size()));
  }
  return args;
}

std::int32_t ParseStartMode(std::string_view command_line) {
  return command_line.empty() ? kNoStartMode : ParseStartArgs(command_line).front();
}

}  // namespace rbt

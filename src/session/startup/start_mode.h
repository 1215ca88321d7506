// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace rbt {

/// The numbers of a command line (its words behind the program's name, as one text), split at single blanks.
/// At most the first two words are read, a word without digits is 0; a number beyond 32 bits throws
/// `overflow`. The other entries are 0.
std::array<std::int32_t, 10> ParseStartArgs(std::string_view command_line);
/// The first number of the command line, `kNoStartMode` when there is none.
std::int32_t ParseStartMode(std::string_view command_line);

}  // namespace rbt

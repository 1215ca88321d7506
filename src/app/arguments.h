// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace rbt {

/// What the program was told when it was started.
struct Arguments {
  std::string command_line;         ///< the words that are no options, a blank between each two
  std::optional<std::string> root;  ///< --root DIR
  bool help = false;
  bool version = false;
  std::string usage_fault;  ///< what is wrong with the options; empty when nothing is
};

/// Takes the options out of the program's words (its own name not among them). A word of one dash is no
/// option: start modes may be negative.
Arguments ParseArguments(std::span<const char* const> words);

/// What the program calls itself.
struct ProgramWords {
  std::string_view name;
  std::string_view title;    ///< of messages before the first form
  std::string_view purpose;  ///< what it opens: one sentence of the usage
};

/// The words of the program that was started under a name, see `WorksWithNames`.
const ProgramWords& WordsOf(std::string_view program);
/// What `--help` tells.
std::string UsageOf(const ProgramWords& words);

/// True for the name under which the program works with registered names: "rbtally2", in whatever folder,
/// with or without ".exe", letter case ignored.
bool WorksWithNames(std::string_view program);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "cli/command.h"

namespace CLI {
class App;
}

namespace rbt {

/// What a program was told to do.
struct Order {
  std::string root;                ///< of `--root`; empty when it was not given
  std::int32_t wait_seconds = 10;  ///< of `--wait`: how long a locked file is waited for
  Action action;
};

/// One command's part of the command line, as its help lists it. Arguments stand by their place, options by
/// their name. A target keeps its value where nothing is given for it; it must live until the line is read.
/// What a target does not take is wrong usage. Numbers are plain decimals.
class CommandLine {
 public:
  /// `order` gets what main itself puts in force.
  CommandLine(CLI::App& line, Order& order) : line_(line), order_(order) {}

  void Argument(const std::string& name, std::string& target, const std::string& description);
  /// One or more.
  void Arguments(const std::string& name, std::vector<std::string>& target, const std::string& description);
  /// They name files, folders or sites: an empty text is wrong usage, not one that was not given.
  void FileArgument(const std::string& name, std::string& target, const std::string& description);
  void FileArguments(const std::string& name, std::vector<std::string>& target,
                     const std::string& description);
  /// Nor does an empty text pass here for one that was not given.
  void OptionalArgument(const std::string& name, std::string& target, const std::string& description);
  /// One of the words, which the help lists.
  void WordArgument(const std::string& name, std::string& target, const std::vector<std::string>& words,
                    const std::string& description);
  /// `form` stands for the value in the help: "MM".
  void NumberArgument(const std::string& name, const std::string& form, std::int32_t& target,
                      const std::string& description);
  /// A whole number of any size: how large it may be is up to what it is for, whose fault is no wrong usage.
  void WholeNumberArgument(const std::string& name, const std::string& form, double& target,
                           const std::string& description);

  void Flag(const std::string& name, bool& target, const std::string& description);
  void TextOption(const std::string& name, const std::string& form, std::string& target,
                  const std::string& description);
  /// The name of a file, folder or site, as of a `FileArgument`.
  void FileOption(const std::string& name, const std::string& form, std::string& target,
                  const std::string& description);
  /// One of the words. The help lists them behind `form`, or in its place where it is empty, and the default.
  void WordOption(const std::string& name, const std::string& form, std::string& target,
                  const std::vector<std::string>& words, const std::string& description);
  /// A whole number, with its present value as the default.
  void NumberOption(const std::string& name, const std::string& form, std::int32_t& target,
                    const std::string& description);
  /// A whole number of `lowest` to `highest`, with its present value as the default. Of 16 or 32 bits.
  template <typename Number>
  void NumberOption(const std::string& name, Number& target, std::type_identity_t<Number> lowest,
                    std::type_identity_t<Number> highest, const std::string& description);
  /// A text of a form of its own, "A-B": `take` says whether it is one.
  void FormOption(const std::string& name, const std::string& form,
                  std::function<bool(const std::string& text)> take, const std::string& description);
  /// The same, any number of times: `take` is asked in the order of the words, also among several such
  /// options.
  void RepeatedOption(const std::string& name, const std::string& form,
                      std::function<bool(const std::string& text)> take, const std::string& description);
  /// `--root` and `--wait`, which main puts in force.
  void RootOption();
  void WaitOption();

 private:
  CLI::App& line_;
  Order& order_;
};

/// Reads a program's words by its commands. Nothing when help was asked for, which is then given. Wrong usage
/// leaves as `UsageError`, whose text names the word.
std::optional<Order> ReadCommandLine(std::span<const Command> commands, int argc, char** argv);

}  // namespace rbt

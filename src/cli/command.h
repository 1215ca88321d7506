// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <span>
#include <stdexcept>
#include <string_view>

namespace rbt {

class CommandLine;

/// Wrong usage that only shows once all options are known; ends the program with status 2.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What a command does once its options are read; faults end it.
using Action = std::function<void()>;

/// One command of the program. `define` adds its options to its part of the command line; the action it
/// returns is called when the command is the one given.
struct Command {
  std::string_view name;
  std::string_view description;
  Action (*define)(CommandLine& line);
};

/// The commands, as `--help` lists them.
std::span<const Command> Commands();

Action DefineDemo(CommandLine& line);
Action DefinePrepare(CommandLine& line);
Action DefineTally(CommandLine& line);
Action DefineNames(CommandLine& line);
Action DefineStock(CommandLine& line);
Action DefineDetail(CommandLine& line);
Action DefineSave(CommandLine& line);
Action DefineLoad(CommandLine& line);
Action DefineList(CommandLine& line);
Action DefineRename(CommandLine& line);
Action DefineDelete(CommandLine& line);
Action DefineExport(CommandLine& line);
Action DefineAccumulate(CommandLine& line);
Action DefinePlan(CommandLine& line);
Action DefineReport(CommandLine& line);
Action DefineImport(CommandLine& line);
Action DefineCheck(CommandLine& line);
Action DefineDump(CommandLine& line);

}  // namespace rbt

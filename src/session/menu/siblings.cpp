// SPDX-License-Identifier: MIT
#include "session/menu/siblings.h"

#include <string>

#include "platform/system/message.h"
#include "platform/system/paths.h"
#include "session/menu/captions.h"

namespace rbt {

namespace {

constexpr std::string_view kNameCompanionProgram = StartModeTraits().name_companion;
constexpr std::string_view kOwnNameProgram = "rbtally2";

std::string_view ProgramOf(std::string_view command_line) {
  return command_line.substr(0, command_line.find(' '));
}

/// The command line that is run for one of the family: the same wherever its program is in the root.
std::string CommandLineToRun(std::string_view command_line) {
  const std::string_view program = ProgramOf(command_line);
  const bool stands_in =
      program == kNameCompanionProgram && !FamilyFileExists(program) && OwnProgram(kOwnNameProgram);
  if (!stands_in) return std::string(command_line);
  return std::string(kOwnNameProgram).append(command_line.substr(program.size()));
}

}  // namespace

Sibling NameCompanion(const StartModeTraits& start_mode) {
  return {"\\rbk", start_mode.name_companion, WindowStyle::maximised, true, true};
}

bool RequireSibling(std::string_view command_line) {
  const std::string_view program = ProgramOf(command_line);
  if (FamilyFileExists(program) || CommandLineToRun(command_line) != command_line) return true;
  MsgBox("プログラム「" + std::string(program) + "」が見つかりません。", kMenuTitle);
  return false;
}

void RunSibling(const Sibling& sibling) {
  if (!sibling.directory.empty()) ChangeFamilyDirectory(sibling.directory);
  const std::string command_line = CommandLineToRun(sibling.command_line);
  if (sibling.polling) {
    RunAndWaitPoll(command_line, sibling.style);
  } else {
    RunAndWait(command_line, sibling.style);
  }
}

}  // namespace rbt

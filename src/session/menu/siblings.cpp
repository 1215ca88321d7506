// SPDX-License-Identifier: MIT
#include "session/menu/siblings.h"

#include <string>

#include "platform/system/message.h"
#include "platform/system/paths.h"
#include "session/menu/captions.h"

namespace rbt {

Sibling NameCompanion(const StartModeTraits& start_mode) {
  return {"\\rbk", start_mode.name_companion, WindowStyle::maximised, true, true};
}

bool RequireSibling(std::string_view command_line) {
  const std::string_view program = command_line.substr(0, command_line.find(' '));
  if (FamilyFileExists(program)) return true;
  MsgBox("プログラム「" + std::string(program) + "」が見つかりません。", kMenuTitle);
  return false;
}

void RunSibling(const Sibling& sibling) {
  if (!sibling.directory.empty()) ChangeFamilyDirectory(sibling.directory);
  if (sibling.polling) {
    RunAndWaitPoll(sibling.command_line, sibling.style);
  } else {
    RunAndWait(sibling.command_line, sibling.style);
  }
}

}  // namespace rbt

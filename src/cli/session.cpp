// SPDX-License-Identifier: MIT
#include "cli/session.h"

#include <filesystem>

#include "cli/command.h"
#include "platform/fault.h"
#include "platform/system/paths.h"
#include "session/startup/startup.h"

namespace rbt {

void RequireRoot() {
  if (Root().empty()) throw UsageError("no root folder: give --root DIR or set RBK_ROOT");
  if (!std::filesystem::is_directory(Root())) {
    throw Fault(FaultKind::file, "the root " + Root().string() + " is no folder");
  }
}

void OpenSite(const CommonOptions& options) {
  RequireRoot();
  StartOptions start;
  start.start_mode = TraitsOfStartMode(options.start_mode);
  start.prepare = !options.no_prepare;
  start.site = options.site;
  start.command_line = true;
  LoadSite(start);
  ActivateMenu(start);
}

}  // namespace rbt

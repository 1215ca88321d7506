// SPDX-License-Identifier: MIT
#include "cli/session.h"

#include <filesystem>
#include <system_error>

#include "cli/command.h"
#include "platform/fault.h"
#include "platform/files/system_error.h"
#include "platform/system/paths.h"
#include "session/startup/startup.h"
#include "shell/context/site_context.h"

namespace rbt {

void RequireRoot() {
  if (Root().empty()) throw UsageError("no root folder: give --root DIR or set RBK_ROOT");
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(Root(), error);
  if (status.type() == std::filesystem::file_type::none) throw FileFault(Root(), "the root", error.value());
  if (!std::filesystem::is_directory(status)) {
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
  // Another program may have chosen another site in between.
  start.site = SiteContext.SelectedDbName;
  ActivateMenu(start);
}

}  // namespace rbt

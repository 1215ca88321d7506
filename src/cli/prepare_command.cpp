// SPDX-License-Identifier: MIT
#include <memory>

#include "cli/command_line.h"
#include "cli/options.h"
#include "cli/session.h"

namespace rbt {

Action DefinePrepare(CommandLine& line) {
  auto options = std::make_shared<CommonOptions>();
  AddCommonOptions(line, *options);
  return [options] { OpenSite(*options); };
}

}  // namespace rbt

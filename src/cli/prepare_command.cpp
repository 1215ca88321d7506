// SPDX-License-Identifier: MIT
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "cli/options.h"
#include "cli/session.h"

namespace rbt {

Action DefinePrepare(CLI::App& line) {
  auto options = std::make_shared<CommonOptions>();
  AddCommonOptions(line, *options);
  return [options] { OpenSite(*options); };
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "shell/output/output_files.h"

namespace rbt {

class CommandLine;

/// `--force`: a file of another kind goes.
void AddForceOption(CommandLine& line, bool& force);

/// A file by the option that names it: "-o".
struct NamedOutput {
  std::string_view option;
  OutputFile file;
};

/// Looks at the files that a command is told to write, before anything is worked out; those without a name
/// are none. Throws `UsageError` for two names of one file, `file` for a place where no result is written
/// and, without `force`, for a file of another kind.
void RequireOutputs(std::vector<NamedOutput> outputs, bool force);

}  // namespace rbt

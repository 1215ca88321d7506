// SPDX-License-Identifier: MIT
#include "cli/output_options.h"

#include <fmt/format.h>

#include "cli/command.h"
#include "cli/command_line.h"
#include "platform/files/system_error.h"

namespace rbt {

void AddForceOption(CommandLine& line, bool& force) {
  line.Flag("--force", force, "replace a file that holds something else than this command writes");
}

void RequireOutputs(std::vector<NamedOutput> outputs, bool force) {
  std::erase_if(outputs, [](const NamedOutput& output) { return output.file.path.empty(); });
  std::vector<OutputFile> files;
  files.reserve(outputs.size());
  for (const NamedOutput& output : outputs) files.push_back(output.file);
  if (const auto twice = NamedTwice(files)) {
    throw UsageError(fmt::format("{} and {} name the same file {}", outputs[twice->first].option,
                                 outputs[twice->second].option, files[twice->first].path.string()));
  }
  for (const OutputFile& file : files) {
    RequireOutputPlace(file.path);
    if (force || !ReplacesAnotherKind(file)) continue;
    throw FileFaultText(file.path, "is there and holds something else; --force replaces it");
  }
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace rbt::bench {

/// What one run took.
struct Cost {
  double wall = 0.0;       ///< seconds
  double processor = 0.0;  ///< seconds that the processor spent on it
  double peak_mb = 0.0;    ///< greatest resident memory; 0 of commands, see `Counts`
};

/// Of an action of this program.
Cost CostOf(const std::function<void()>& action);

/// The words of a command, the program first.
using Command = std::vector<std::string>;

/// Of commands that run at once, until the last has ended, their standard output thrown away. One that fails
/// throws.
Cost CostOf(const std::vector<Command>& at_once);

/// What a command leaves behind: it is counted in a run of its own, which takes longer.
struct Counts {
  long syncs = 0;  ///< how often it waited for the disk
  long bytes = 0;  ///< written to files
  double peak_mb = 0.0;
};
/// `scratch` is a file that may be written.
Counts CountsOf(const Command& command, const std::filesystem::path& scratch);

}  // namespace rbt::bench

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/jet/jet_file.h"

namespace rbt::jet {

/// What the check of a file found.
struct CheckReport {
  std::vector<std::string> lines;  ///< a line a table: rows, indexes
  std::vector<std::string>
      warnings;  ///< worth knowing, no damage: not closed cleanly, a row count that is off
  std::vector<std::string> damages;  ///< empty when the file is sound
};

/// Looks at the whole file: every page owned once, usage maps agree with the pages, row counts agree, each
/// index sorted, complete and resolving to live rows. Damage is collected, never thrown.
CheckReport CheckFile(JetFile& file);

}  // namespace rbt::jet

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "jet/table.h"

namespace rbt::jet {

/// What the check of a file found.
struct CheckReport {
  std::vector<std::string> lines;     ///< a line a table: rows, columns, indexes
  std::vector<std::string> warnings;  ///< worth knowing, no damage: given-up pages, how it was closed
  std::vector<std::string> damages;   ///< empty when the file is sound; at most 200, then how many more
};

/// Looks at the whole file: every page owned once, usage maps agree with the pages, row counts agree, each
/// index sorted, complete, resolving to live rows, with their keys as far as those are numbers, and unique
/// where it says so. Damage is collected, never thrown.
CheckReport CheckFile(JetFile& file);

/// The same of some tables and of nothing else: what belongs to no table is not looked for.
CheckReport CheckTables(JetFile& file, const std::vector<CatalogEntry>& tables);

}  // namespace rbt::jet

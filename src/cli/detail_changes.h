// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "tally/tally_result.h"

namespace rbt {

class CommandLine;

/// An uplift of the purchase list, as it would be typed.
struct PercentChange {
  std::string text;
};
/// A correction of one of its cells: "D19", "6.0" or "weld", and the count as it would be typed.
struct CellChange {
  std::string row;
  std::string column;
  std::string count;
};
/// The changes in the order in which they stand on the command line.
using DetailChanges = std::vector<std::variant<PercentChange, CellChange>>;

/// `--percent` and `--set`.
void AddChangeOptions(CommandLine& line, DetailChanges& changes, const std::string& percent_description);
/// Throws `UsageError` for a cell that the grid does not have under the setting 定尺13有無.
void RequireCells(const DetailChanges& changes);
/// The same, and for any change of a tally without a purchase list: of floors or parts.
void RequireChangesOfKind(const std::string& kind, const DetailChanges& changes);
/// The result after the changes, as the detail screen makes them. Throws `overflow`.
TallyResult Changed(TallyResult result, const DetailChanges& changes);

}  // namespace rbt

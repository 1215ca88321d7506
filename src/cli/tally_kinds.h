// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/options.h"

namespace rbt {

/// A kind of tally that fills `TallyGrid`: its word on the command line, its number, and what runs it
/// on the open site, with a message for what the screen warns of beside its grid.
struct GridTally {
  std::string_view name;
  std::int32_t number;  ///< TallyKind
  void (*fill)(const SelectionOptions& selection);
};

std::span<const GridTally> GridTallies();
std::vector<std::string> GridTallyNames();

/// Opens the site and fills `TallyGrid` with a kind of tally under the selection. Throws `UsageError` for
/// `--kinds 0`.
void FillTallyGrid(const std::string& kind, const CommonOptions& common, const SelectionOptions& selection);

}  // namespace rbt

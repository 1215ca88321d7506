// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "tally/part_tables.h"

namespace rbt {

/// Three blanks: the row that stands between thin and deformed bars.
inline constexpr std::string_view kGapLabel = "   ";
inline constexpr std::string_view kPartTotalLabel = "合計";

/// Lists the twelve deformed diameters and the total row behind them; `thin_rows`: the six Ulbon diameters
/// and a gap row before them.
void ListParts(PartTables& tables, bool thin_rows);

}  // namespace rbt

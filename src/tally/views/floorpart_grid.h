// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "data/parts.h"
#include "tally/floor_tables.h"
#include "tally/part_tables.h"
#include "tally/views/result_grid.h"

namespace rbt {

/// The names of the parts 1 to 10 at the site.
using PartNames = std::array<std::string, kLastNamedPart>;

/// Captions of the thirteen columns that are seen: floor or diameter, the parts, the others, the total. The
/// names must outlive them.
std::vector<std::string_view> FloorCaptions(const PartNames& names);
std::vector<std::string_view> PartCaptions(const PartNames& names);

/// The listed rows as the texts of their cells, kilograms with thousands separators.
GridRows ShowFloors(const FloorTables& tables);
GridRows ShowParts(const PartTables& tables);

}  // namespace rbt

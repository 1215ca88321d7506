// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace rbt::bench {

/// What a yardstick groups the schedule by.
enum class Grouping { diameter, floor_and_part };

/// One bare aggregation over the schedule through the SQLite C API, as an engineer would write it by hand at
/// a prompt: what the store takes to add a schedule up.
void BareAggregation(const std::filesystem::path& site, Grouping grouping);

/// The same sums by a loop over the bare rows: what a program takes that adds them up itself.
void PlainFold(const std::filesystem::path& site, Grouping grouping);

}  // namespace rbt::bench

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace rbt::bench {

/// What the bare aggregation groups the schedule by.
enum class Grouping { diameter, floor_and_part };

/// One bare aggregation over the schedule through the SQLite C API, as an engineer would write it by hand at
/// a prompt: the least that any program has to do that adds a schedule up. Returns the seconds it took.
double BareAggregation(const std::filesystem::path& site, Grouping grouping);

/// Seconds on the steady clock, and seconds that the processor spent on this program.
double SecondsNow();
double ProcessorSecondsNow();

/// The greatest resident memory since `ResetPeakMemory`, in MB.
double PeakMemoryMb();
void ResetPeakMemory();

}  // namespace rbt::bench

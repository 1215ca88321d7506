// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace rbt::bench {

/// One bare aggregation over the schedule through the SQLite C API, as an engineer would write it by hand at
/// a prompt: the least that any program has to do that adds a schedule up. Returns the seconds it took.
double BareAggregation(const std::filesystem::path& site);

/// Seconds on the steady clock.
double SecondsNow();

/// The greatest resident memory since `ResetPeakMemory`, in MB.
double PeakMemoryMb();
void ResetPeakMemory();

}  // namespace rbt::bench

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace rbt {

/// Tells what went wrong where nothing may be thrown or another fault is told already: one line on
/// standard error, and counted.
void LogFailure(std::string_view what) noexcept;
/// How many have been told in this run.
std::int64_t LoggedFailures();

}  // namespace rbt

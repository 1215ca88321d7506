// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace rbt {

/// Siblings whose presence on disk decides what the menu shows; the menu starts them by the same paths.
inline constexpr std::string_view kWeldCounterProgram = "\\rbk\\kakou\\rbweldcnt.exe";
inline constexpr std::string_view kPlateCounterProgram = "\\rbk\\kakou\\rbplatecnt.exe";
inline constexpr std::string_view kJoinCounterProgram = "\\rbk\\kakou\\rbjoincnt.exe";
inline constexpr std::string_view kPlateSheetProgram = "\\rbk\\kakou\\rbplateprt.exe";

}  // namespace rbt

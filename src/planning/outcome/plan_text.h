// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "planning/outcome/outcome.h"

namespace rbt::planning {

/// What is bought, line by line, then the three ways to cut side by side, the bound, and, where it was asked
/// for, the advice: tables for a terminal, an empty line between two.
std::string PlanTable(const Outcome& outcome);

/// A line a pattern, RFC 4180 with a header line; pieces as "2340x5+1200x1", flags 0 or 1.
std::string PlanCsv(const Outcome& outcome);

/// "2340x5+1200x1".
std::string PiecesText(const Pattern& pattern);
/// "D16"; "-" where no diameter was given.
std::string DiameterText(int diameter);
/// "異形"; a number that is none of the kinds stands for itself.
std::string KindText(int kind);
/// "フープ" for one that is made elsewhere, else empty.
std::string HoopText(const BarSteel& steel);
/// "D16 異形", "D13 異形 フープ".
std::string SteelText(const BarSteel& steel);
/// Where pieces go, and how many: "1頁4行x5"; of a file "4行[A1]x5"; "-" for a number that is missing.
std::string PlaceText(const OutcomeShare& share);

}  // namespace rbt::planning

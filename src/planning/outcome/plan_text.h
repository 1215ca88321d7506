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

}  // namespace rbt::planning

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "reports/frame/report_pen.h"

namespace rbt {

/// Tells the user which figures of a report lost their first characters: page, row, column and the whole
/// figure, the first ten by name. There is one at least.
std::string CutFigureMessage(const CutFigures& figures);

}  // namespace rbt

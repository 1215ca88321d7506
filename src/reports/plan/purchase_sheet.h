// SPDX-License-Identifier: MIT
#pragma once

#include "planning/outcome/outcome.h"
#include "reports/plan/plan_sheet.h"

namespace rbt {

/// All bars to order, line by line, with their weight and price, and what the ways to cut lose. A4 portrait.
/// Returns the figures that its fields cut.
CutFigures DrawPurchaseSheet(PrinterSurface& Printer, const PlanSheetHead& head,
                             const planning::Outcome& outcome);

}  // namespace rbt

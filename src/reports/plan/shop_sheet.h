// SPDX-License-Identifier: MIT
#pragma once

#include "planning/outcome/outcome.h"
#include "reports/plan/plan_sheet.h"

namespace rbt {

/// What the shop cuts, pattern by pattern in their order: how often, the bar to scale with its rest hatched,
/// the marks from the bar's end, the rows that the pieces go to; then the rests that are of use. A4 portrait.
void DrawShopSheet(PrinterSurface& Printer, const PlanSheetHead& head, const planning::Outcome& outcome);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/print/printer_surface.h"
#include "reports/comparison/comparison_head.h"
#include "reports/comparison/comparison_layout.h"

namespace rbt {

/// Draws a comparison report as one document of one page.
void DrawComparison(PrinterSurface& Printer, const ComparisonForm& form, const ComparisonSheet& sheet);

/// First and last row of the table's frame; the last rule stands at the top of the last row.
struct FrameRows {
  int first;
  int last;
};
FrameRows FrameRowsOf(const ComparisonForm& form, const ComparisonSheet& sheet);

}  // namespace rbt

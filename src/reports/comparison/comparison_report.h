// SPDX-License-Identifier: MIT
#pragma once

#include "platform/print/printer_surface.h"
#include "reports/comparison/comparison_head.h"
#include "reports/comparison/comparison_layout.h"

namespace rbt {

/// Draws a comparison report as one document of one page. Returns the figures that its fields cut.
CutFigures DrawComparison(PrinterSurface& Printer, const ComparisonForm& form, const ComparisonSheet& sheet);

/// First and last row of the table's frame on the page.
RowRange FrameRowsOf(const ComparisonForm& form, const ComparisonSheet& sheet);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include "reports/frame/head_layout.h"
#include "reports/frame/report_head.h"
#include "reports/frame/report_pen.h"
#include "reports/frame/row_grid.h"

namespace rbt {

/// Draws title and parts in the order of the layout, on the page where the pen is, and returns the rows of
/// the page. The document bears the head's title.
RowGrid DrawHead(ReportPen& pen, const HeadLayout& layout, const ReportHead& head);
/// Draws one part more, such as one that stands behind the table.
void DrawHeadPart(ReportPen& pen, const HeadPart& part, const RowGrid& grid, const ReportHead& head);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include "reports/frame/head_layout.h"
#include "reports/frame/report_head.h"
#include "reports/frame/report_pen.h"
#include "reports/frame/row_grid.h"

namespace rbt {

/// One part of a head on the page where the pen is, by the rows of that page.
void DrawPart(ReportPen& pen, const ClientPart& part, const RowGrid& grid, const ReportHead& head);
void DrawPart(ReportPen& pen, const ProjectPart& part, const RowGrid& grid, const ReportHead& head);
void DrawPart(ReportPen& pen, const SubProjectPart& part, const RowGrid& grid, const ReportHead& head);
void DrawPart(ReportPen& pen, const WeightPart& part, const RowGrid& grid, const ReportHead& head);
void DrawPart(ReportPen& pen, const DatePart& part, const RowGrid& grid, const ReportHead& head);
void DrawPart(ReportPen& pen, const TextPart& part, const RowGrid& grid, const ReportHead& head);
void DrawPart(ReportPen& pen, const PagePart& part, const RowGrid& grid, const ReportHead& head);
void DrawPart(ReportPen& pen, const OwnCompanyPart& part, const RowGrid& grid, const ReportHead& head);

}  // namespace rbt

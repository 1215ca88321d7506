// SPDX-License-Identifier: MIT
#pragma once

#include "platform/print/printer_surface.h"
#include "reports/frame/report_pen.h"
#include "reports/frame/report_site.h"
#include "tally/tally_result.h"

namespace rbt {

/// The purchase lists, 材料明細表 or 合計数量表: the stock bars of a result of the bound site by diameter and
/// length, under the settings 重量の無い太さの印字, 定尺13有無 and 数量表タイトル. A4T is A4 portrait, A4Y A4
/// landscape; those of counts alone leave the weights by length out. They return the figures that their
/// fields cut.
CutFigures Meisai_A4T(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result);
CutFigures Meisai_A4T_Count(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result);
CutFigures Meisai_A4Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result);
CutFigures Meisai_A4Y_Count(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result);

}  // namespace rbt

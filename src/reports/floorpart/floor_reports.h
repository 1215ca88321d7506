// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "platform/print/printer_surface.h"
#include "reports/frame/report_pen.h"
#include "reports/frame/report_site.h"
#include "tally/tally_result.h"

namespace rbt {

/// The reports of a floor tally of the bound site, A4 landscape. They return the figures that their fields
/// cut.

/// All listed floors by part.
CutFigures Kai_Goukei_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result);
/// The floor of the arguments by diameter and stock length.
CutFigures Kai_Kakukai_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                             const TallyResult& result);
/// The whole range by diameter and stock length: bars and weights, or bars alone.
CutFigures Kai_Meisai_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result);
CutFigures Kai_Meisai_Honsu(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result);
/// The floors with weight by part and diameter.
CutFigures KaiBuiFuto_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result);

/// The floors that a result lists, as floor codes.
std::vector<std::int16_t> ListedFloorsOf(const TallyResult& result);
/// True where a floor has weight, without which it gets no sheet of its own; that is told by
/// `TellFloorIsSkipped`.
bool HasFloorWeight(const TallyResult& result, int floor_code);
void TellFloorIsSkipped(int floor_code);

}  // namespace rbt

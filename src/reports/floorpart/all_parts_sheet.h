// SPDX-License-Identifier: MIT
#pragma once

#include "reports/floorpart/part_lists.h"

namespace rbt {

/// 部位別合計数量表 of all parts on one page: three bands of four diameters, in each the weight and the welds
/// of every part.
CutFigures DrawAllParts(PrinterSurface& Printer, const SheetSite& site, const ReportArguments& arguments,
                        const TallyResult& result);

}  // namespace rbt

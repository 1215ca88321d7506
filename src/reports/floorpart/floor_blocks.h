// SPDX-License-Identifier: MIT
#pragma once

#include "reports/floorpart/part_lists.h"

namespace rbt {

/// 階・部位・径別合計数量表: a block for each floor with weight and one for all floors, in it a line for each
/// part with weight and a column for each diameter. No block is divided between two pages.
CutFigures DrawFloorBlocks(PrinterSurface& Printer, const SheetSite& site, const ReportArguments& arguments,
                           const TallyResult& result);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "reports/floorpart/part_reports.h"

#include <string>

#include "reports/floorpart/all_parts_sheet.h"
#include "reports/floorpart/diameter_lists.h"
#include "reports/floorpart/floorpart_heads.h"
#include "reports/floorpart/floorpart_texts.h"
#include "reports/floorpart/part_lists.h"

namespace rbt {

namespace {

std::string NameOf(const PartNames& names, std::int32_t part) {
  return part == kOtherParts ? std::string(kOtherPartsLabel) : names.at(static_cast<std::size_t>(part - 1));
}

}  // namespace

CutFigures Bui_Goukei_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result) {
  return DrawPartTotals(Printer, ReadSheetSite(), arguments, result);
}

CutFigures Bui_Zenbui_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result) {
  return DrawAllParts(Printer, ReadSheetSite(), arguments, result);
}

CutFigures Bui_Kakubui_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                             const TallyResult& result) {
  const SheetSite site = ReadSheetSite();
  const PartTables& tables = result.Parts();
  const std::string name = NameOf(site.parts, arguments.FloorOrPart);
  DiameterSheet sheet{.layout = kKakubuiHead,
                      .head = HeadOf("部 位 別 合 計 数 量 表", site.site, arguments),
                      .tells_of = name + " ",
                      .figures = FiguresOfPart(tables, arguments.FloorOrPart),
                      .origins = ReadBarOrigins(),
                      .thin = HoldsThinBarsAlone(result.selection),
                      .with_13m = site.with_13m,
                      .with_installed = false};
  sheet.head.scope = OnePartScope(name);
  sheet.head.total_weight = tables.SouGoukei.ToDouble();
  sheet.thick = HasThickBars(sheet.figures);
  return DrawDiameters(Printer, sheet);
}

}  // namespace rbt

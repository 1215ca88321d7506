// SPDX-License-Identifier: MIT
#include "reports/floorpart/floor_reports.h"

#include <utility>

#include "platform/system/message.h"
#include "reports/floorpart/diameter_lists.h"
#include "reports/floorpart/floor_blocks.h"
#include "reports/floorpart/floorpart_heads.h"
#include "reports/floorpart/floorpart_texts.h"
#include "reports/floorpart/part_lists.h"

namespace rbt {

namespace {

constexpr std::string_view kTitle = "階 別 合 計 数 量 表";

CutFigures DrawRange(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result,
                     bool with_weights) {
  const SheetSite site = ReadSheetSite();
  const FloorTables& tables = result.Floors();
  DiameterSheet sheet{.layout = kMeisaiHead,
                      .head = HeadOf(kTitle, site.site, arguments),
                      .figures = FiguresOfRange(tables),
                      .origins = ReadBarOrigins(),
                      .thin = HoldsThinBarsAlone(result.selection),
                      .with_13m = site.with_13m,
                      .with_weights = with_weights};
  sheet.head.scope = RangeScope(result.selection);
  sheet.head.total_weight = tables.SouGoukei.ToDouble();
  sheet.thick = HasThickBars(sheet.figures);
  return DrawDiameters(Printer, sheet);
}

}  // namespace

CutFigures Kai_Goukei_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result) {
  return DrawFloorTotals(Printer, ReadSheetSite(), arguments, result);
}

CutFigures Kai_Kakukai_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                             const TallyResult& result) {
  const SheetSite site = ReadSheetSite();
  const FloorTables& tables = result.Floors();
  const std::int32_t floor = arguments.FloorOrPart;
  DiameterSheet sheet{.layout = kKakukaiHead,
                      .head = HeadOf(kTitle, site.site, arguments),
                      .tells_of = PrintedFloorName(floor) + " ",
                      .figures = FiguresOfFloor(tables, floor, ColumnsInUse(site.with_13m)),
                      .origins = ReadBarOrigins(),
                      .thin = HoldsThinBarsAlone(result.selection),
                      .with_13m = site.with_13m};
  sheet.head.scope = OneFloorScope(floor);
  sheet.head.total_weight = tables.KaiGoukei[FloorIndex(floor)].ToDouble();
  sheet.thick = HasThickBars(sheet.figures);
  return DrawDiameters(Printer, sheet);
}

CutFigures Kai_Meisai_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result) {
  return DrawRange(Printer, arguments, result, true);
}

CutFigures Kai_Meisai_Honsu(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result) {
  return DrawRange(Printer, arguments, result, false);
}

CutFigures KaiBuiFuto_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result) {
  return DrawFloorBlocks(Printer, ReadSheetSite(), arguments, result);
}

std::vector<std::int16_t> ListedFloorsOf(const TallyResult& result) {
  std::vector<std::int16_t> floors = result.Floors().KaiGyouKai;
  if (!floors.empty()) floors.pop_back();  // the total row
  return floors;
}

// The weight that the screen shows: stock or, where that was chosen, installed, with what a hand corrected.
bool HasFloorWeight(const TallyResult& result, int floor_code) {
  return result.Floors().KaiGoukei[FloorIndex(floor_code)] > Currency();
}

void TellFloorIsSkipped(int floor_code) { MsgBox(PrintedFloorName(floor_code) + "を飛ばします", "印刷確認"); }

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "reports/floorpart/part_lists.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "reports/floorpart/floorpart_heads.h"
#include "reports/floorpart/floorpart_texts.h"
#include "reports/floorpart/part_table.h"
#include "reports/frame/draw_head.h"
#include "reports/frame/page_flow.h"
#include "shell/config/settings.h"
#include "shell/context/reference_names.h"
#include "tally/floorpart/floor_list.h"

namespace rbt {

namespace {

constexpr int kFloorsOnAPage = 19;

constexpr std::array<std::string_view, kDiameterRows> kWideLabels{
    "Ｄ１０", "Ｄ１３", "Ｄ１６", "Ｄ１９", "Ｄ２２", "Ｄ２５", "Ｄ２９", "Ｄ３２", "Ｄ３５",
    "Ｄ３８", "Ｄ４１", "Ｄ５１", "Ｕ　６", "Ｕ　７", "Ｕ　９", "Ｕ１１", "Ｕ１２", "Ｕ１６"};
/// Stands where the thin diameters leave a line of the deformed ones empty.
constexpr std::string_view kWideGap = "　　　";

ReportHead ListHead(std::string_view title, const SheetSite& site, const ReportArguments& arguments,
                    Currency total) {
  ReportHead head = HeadOf(title, site.site, arguments);
  head.total_weight = total.ToDouble();
  return head;
}

/// Row 0 of a table is below the head of the page, as high as the rows of that.
RowGrid TableRows(const RowGrid& head) { return {head.LineUnit, head.Y(kFloorPartTableRow)}; }

/// The floors of a floor tally by part.
class FloorTotals {
 public:
  FloorTotals(ReportPen& pen, const SheetSite& site, const ReportArguments& arguments,
              const TallyResult& result)
      : pen_(pen),
        tables_(result.Floors()),
        head_(ListHead("階 別 合 計 数 量 表", site, arguments, tables_.SouGoukei)),
        table_(pen, "階", site.parts) {
    head_.scope = ListedScope(result.selection);
  }

  void Draw() {
    std::vector<FlowBlock> lines(tables_.KaiGyouKai.size());
    lines.back().closes = true;  // the total
    const std::size_t total = lines.size() - 1;
    DrawPages(pen_, Paginate(lines, {kFloorsOnAPage, kFloorsOnAPage + 1}),
              {.head = [this](ReportPen&, const PageOfBlocks&) { Kai_Goukei_Head(); },
               .block =
                   [this, total](ReportPen&, const PlacedBlock& at) {
                     LineCount = at.row;
                     at.block == total ? Kai_Goukei_Total() : Kai_Goukei_Line(tables_.KaiGyouKai[at.block]);
                   },
               .foot = {}});
  }

 private:
  void Kai_Goukei_Head() { table_.DrawTop(TableRows(DrawHead(pen_, kKaiGoukeiHead, head_))); }

  void Kai_Goukei_Line(int floor) {
    const int f = FloorIndex(floor);
    table_.DrawLine(LineCount + 1, {FloorListLabel(floor), tables_.KaiBuiGoukei[f], tables_.KaiGoukei[f]});
  }

  void Kai_Goukei_Total() {
    table_.DrawLine(LineCount + 1, {std::string(kFloorTotalLabel), tables_.BuiGoukei, tables_.SouGoukei});
  }

  ReportPen& pen_;
  const FloorTables& tables_;
  ReportHead head_;
  PartTable table_;
  int LineCount = 0;  ///< lines of the page above the one that is drawn
};

/// The diameters of a part tally by part.
class PartTotals {
 public:
  PartTotals(ReportPen& pen, const SheetSite& site, const ReportArguments& arguments,
             const TallyResult& result)
      : pen_(pen),
        tables_(result.Parts()),
        thin_(HoldsThinBarsAlone(result.selection)),
        head_(ListHead("部 位 別 合 計 数 量 表", site, arguments, tables_.SouGoukei)),
        table_(pen, "太さ", site.parts) {
    head_.scope = RangeScope(result.selection);
  }

  void Draw() {
    Bui_Goukei_Head();
    for (int row = 0; row < kDeformedRows; ++row) Bui_Goukei_Line(row);
    Bui_Goukei_Total();
    pen_.Printer.EndDoc();
  }

 private:
  void Bui_Goukei_Head() { table_.DrawTop(TableRows(DrawHead(pen_, kBuiGoukeiHead, head_))); }

  void Bui_Goukei_Line(int row) {
    const int r = thin_ ? kDeformedRows + row : row;
    if (r >= kDiameterRows) return table_.DrawGap(row + 1, kWideGap);
    const std::string label(kWideLabels[static_cast<std::size_t>(r)]);
    table_.DrawLine(row + 1, {label, tables_.BuiTaisaGoukei[r], tables_.TaisaGoukei[r]});
  }

  void Bui_Goukei_Total() {
    table_.DrawLine(kDeformedRows + 1, {"合　計", tables_.BuiGoukei, tables_.SouGoukei});
  }

  ReportPen& pen_;
  const PartTables& tables_;
  bool thin_;
  ReportHead head_;
  PartTable table_;
};

}  // namespace

SheetSite ReadSheetSite() { return {ReadReportSite(), NamesOfParts(), Settings.Use13mColumn == 1}; }

CutFigures DrawFloorTotals(PrinterSurface& Printer, const SheetSite& site, const ReportArguments& arguments,
                           const TallyResult& result) {
  ReportPen pen(Printer);
  FloorTotals(pen, site, arguments, result).Draw();
  return pen.cut_figures;
}

CutFigures DrawPartTotals(PrinterSurface& Printer, const SheetSite& site, const ReportArguments& arguments,
                          const TallyResult& result) {
  ReportPen pen(Printer);
  PartTotals(pen, site, arguments, result).Draw();
  return pen.cut_figures;
}

}  // namespace rbt

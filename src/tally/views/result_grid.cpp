// SPDX-License-Identifier: MIT
#include "tally/views/result_grid.h"

#include "data/diameters.h"
#include "platform/numbers/number_mask.h"
#include "platform/numbers/number_words.h"
#include "tally/captions.h"
#include "tally/spirals.h"
#include "tally/ulbon_totals.h"

namespace rbt {
namespace {

constexpr std::string_view kGradeGap = "        ";
constexpr std::string_view kUlbonTotalLabel = "ウ ル ボ ン 合 計";
constexpr std::string_view kLossRateLabel = "ロ      ス 率(％)";
constexpr std::string_view kGrandTotalLabel = "総　　合　　計";
constexpr std::string_view kSpiralHead = "スパイラル ";
constexpr std::string_view kSpiralIndent = "　　　　　　";
constexpr std::array<std::string_view, kSpiralKinds.size()> kSpiralNames = {"異形", "ｳﾙﾎﾞﾝ", "高強度"};
constexpr std::string_view kSpiralTotalLabel = "スパイラル 合計";

std::string Count(std::int32_t count) { return FormatNumber(std::int64_t{count}, "#,##0"); }

/// One blank behind the digits, so that they stand clear of the cell's edge.
template <typename Number>
std::string Weight(Number kilograms) {
  return FormatNumber(kilograms, "#,##0") + " ";
}

template <typename Number>
std::string TotalWeight(Number kilograms) {
  return FormatNumber(kilograms, "#,##0") + " kg";
}

void AppendDeformedRows(GridRows& rows, const TallyTable& table, const GridView& view) {
  for (int d = 0; d < kDeformedRows; ++d) {
    const Currency stock = table.StockWeightByDia[d];
    const Currency installed = table.InstalledWeightByDia[d];
    std::string label = view.grade_names[static_cast<std::size_t>(d)];
    label.append(kGradeGap).append(DiameterLabel(d));
    rows.push_back({label, Weight(WholeKilograms(stock)), Weight(WholeKilograms(installed)),
                    Weight(stock - installed), Count(table.WeldCount[d]), Count(table.CutCount[d])});
  }
}

void AppendTotalRows(GridRows& rows, const TallyTable& table, const SelectionData& selection) {
  std::string label(TotalRowLabel(selection.MaterialKindMask));
  if (selection.StartMode.hides_slit) label = StripSlitWord(label);
  rows.push_back({label, Weight(table.TotalStockWeight), Weight(table.TotalInstalledWeight),
                  Weight(table.TotalStockWeight - table.TotalInstalledWeight), Count(table.TotalWeldCount),
                  Count(table.TotalCutCount)});
  rows.push_back(
      {std::string(kLossRateLabel), FormatNumber(table.LossRatePercent, "#,##0.00") + " ％", "", "", "", ""});
}

void AppendUlbonRows(GridRows& rows, const TallyTable& table, double percent) {
  for (int d = kDeformedRows; d < kDiameterRows; ++d) {
    rows.push_back({std::string(DiameterLabel(d)), "", Weight(UpliftedUlbonWeight(table, d, percent)), "",
                    Count(table.UlbonWeldCount[d]), ""});
  }
  rows.push_back({std::string(kUlbonTotalLabel), "", TotalWeight(UlbonWeightSum(table, percent)), "",
                  Count(UlbonWeldSum(table)), ""});
}

/// One line for each material that has weight, the word スパイラル on the first alone.
void AppendSpiralRows(GridRows& rows, const TallyTable& table) {
  bool first = true;
  for (std::size_t i = 0; i < kSpiralKinds.size(); ++i) {
    if (!table.SpiralKinds.Has(kSpiralKinds[i])) continue;
    std::string label(first ? kSpiralHead : kSpiralIndent);
    label.append(kSpiralNames[i]);
    rows.push_back({label, "", Weight(table.SpiralWeight[static_cast<int>(i)]), "", "", ""});
    first = false;
  }
  rows.push_back({std::string(kSpiralTotalLabel), "", Weight(table.SpiralTotal), "", "", ""});
}

}  // namespace

GridRows ShowTally(const TallyTable& table, const SelectionData& selection, const GridView& view) {
  GridRows rows;
  if (view.show_ulbon_only) {
    AppendUlbonRows(rows, table, view.percent);
    return rows;
  }
  AppendDeformedRows(rows, table, view);
  AppendTotalRows(rows, table, selection);
  double grand_total = table.TotalInstalledWeight.ToDouble();
  if (selection.IncludeUlbon) {
    AppendUlbonRows(rows, table, view.percent);
    grand_total += UlbonWeightSum(table, view.percent);
  }
  if (!table.SpiralKinds.IsNone() && !LeavesSpiralsOut(selection)) {
    AppendSpiralRows(rows, table);
    grand_total += table.SpiralTotal.ToDouble();
  }
  rows.push_back({std::string(kGrandTotalLabel), TotalWeight(table.TotalStockWeight),
                  TotalWeight(grand_total), "", "", ""});
  return rows;
}

GridRows StockRows(const StockResult& stock) {
  return {{std::to_string(stock.StockBars), std::to_string(stock.PiecesPerBar),
           ShortestDecimal(stock.StockLengthM)}};
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "tally/views/result_grid.h"

#include <utility>

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

/// Rows as they are put together.
struct Shown {
  GridRows rows;
  std::vector<std::size_t> totals;

  void Add(std::vector<std::string> row) { rows.push_back(std::move(row)); }
  void AddTotal(std::vector<std::string> row) {
    totals.push_back(rows.size());
    Add(std::move(row));
  }
};

void AppendDeformedRows(Shown& shown, const TallyTable& table, const GridView& view) {
  for (int d = 0; d < kDeformedRows; ++d) {
    const Currency stock = table.StockWeightByDia[d];
    const Currency installed = table.InstalledWeightByDia[d];
    std::string label = view.grade_names[static_cast<std::size_t>(d)];
    label.append(kGradeGap).append(DiameterLabel(d));
    shown.Add({label, Weight(WholeKilograms(stock)), Weight(WholeKilograms(installed)),
               Weight(stock - installed), Count(table.WeldCount[d]), Count(table.CutCount[d])});
  }
}

void AppendTotalRows(Shown& shown, const TallyTable& table, const SelectionData& selection) {
  std::string label(TotalRowLabel(selection.MaterialKindMask));
  if (selection.StartMode.hides_slit) label = StripSlitWord(label);
  shown.AddTotal({label, Weight(table.TotalStockWeight), Weight(table.TotalInstalledWeight),
                  Weight(table.TotalStockWeight - table.TotalInstalledWeight), Count(table.TotalWeldCount),
                  Count(table.TotalCutCount)});
  shown.Add(
      {std::string(kLossRateLabel), FormatNumber(table.LossRatePercent, "#,##0.00") + " ％", "", "", "", ""});
}

void AppendUlbonRows(Shown& shown, const TallyTable& table, double percent) {
  for (int d = kDeformedRows; d < kDiameterRows; ++d) {
    shown.Add({std::string(DiameterLabel(d)), "", Weight(UpliftedUlbonWeight(table, d, percent)), "",
               Count(table.UlbonWeldCount[d]), ""});
  }
  shown.AddTotal({std::string(kUlbonTotalLabel), "", TotalWeight(UlbonWeightSum(table, percent)), "",
                  Count(UlbonWeldSum(table)), ""});
}

/// One line for each material that has weight, the word スパイラル on the first alone.
void AppendSpiralRows(Shown& shown, const TallyTable& table) {
  bool first = true;
  for (std::size_t i = 0; i < kSpiralKinds.size(); ++i) {
    if (!table.SpiralKinds.Has(kSpiralKinds[i])) continue;
    std::string label(first ? kSpiralHead : kSpiralIndent);
    label.append(kSpiralNames[i]);
    shown.Add({label, "", Weight(table.SpiralWeight[static_cast<int>(i)]), "", "", ""});
    first = false;
  }
  shown.AddTotal({std::string(kSpiralTotalLabel), "", Weight(table.SpiralTotal), "", "", ""});
}

Shown ShownTally(const TallyTable& table, const SelectionData& selection, const GridView& view) {
  Shown shown;
  if (view.show_ulbon_only) {
    AppendUlbonRows(shown, table, view.percent);
    return shown;
  }
  AppendDeformedRows(shown, table, view);
  AppendTotalRows(shown, table, selection);
  double grand_total = table.TotalInstalledWeight.ToDouble();
  if (selection.IncludeUlbon) {
    AppendUlbonRows(shown, table, view.percent);
    grand_total += UlbonWeightSum(table, view.percent);
  }
  if (!table.SpiralKinds.IsNone() && !LeavesSpiralsOut(selection)) {
    AppendSpiralRows(shown, table);
    grand_total += table.SpiralTotal.ToDouble();
  }
  shown.AddTotal({std::string(kGrandTotalLabel), TotalWeight(table.TotalStockWeight),
                  TotalWeight(grand_total), "", "", ""});
  return shown;
}

}  // namespace

GridRows ShowTally(const TallyTable& table, const SelectionData& selection, const GridView& view) {
  return ShownTally(table, selection, view).rows;
}

std::vector<std::size_t> TotalRowsOfTally(const TallyTable& table, const SelectionData& selection,
                                          const GridView& view) {
  return ShownTally(table, selection, view).totals;
}

GridRows StockRows(const StockResult& stock) {
  return {{std::to_string(stock.StockBars), std::to_string(stock.PiecesPerBar),
           ShortestDecimal(stock.StockLengthM)}};
}

}  // namespace rbt

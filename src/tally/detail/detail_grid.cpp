// SPDX-License-Identifier: MIT
#include "tally/detail/detail_grid.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

#include "data/diameters.h"
#include "platform/numbers/number_mask.h"

namespace rbt {

namespace {

constexpr int kNameColumns = 2;
constexpr std::string_view kDiameterCaption = "鋼材";
constexpr std::string_view kUnitCaption = "m";
constexpr std::string_view kWeightCaption = "重 量";
constexpr std::string_view kCounts = "本数";
constexpr std::string_view kWeights = "重量";
constexpr std::string_view kCountTotals = "本数  ";
constexpr std::string_view kWeightTotals = "重　量  ";
constexpr std::string_view kMask = "#,##0";
constexpr std::string_view kBlankZeroMask = "#,###";

std::string Text(std::int64_t count, std::string_view mask) { return FormatNumber(count, mask); }
std::string Text(Currency kilograms, std::string_view mask) { return FormatNumber(kilograms, mask); }

/// A line without its weight and fittings: what it is called, then a cell for each stock column.
template <typename ValueOf>
std::vector<std::string> Line(std::string_view name, std::string_view holds, int columns,
                              std::string_view mask, const ValueOf& value_of) {
  std::vector<std::string> line{std::string(name), std::string(holds)};
  for (int l = 0; l < columns; ++l) line.push_back(Text(value_of(l), mask));
  return line;
}

/// Closes a line by its weight and four fittings.
template <typename CountOf>
void Close(std::vector<std::string>& line, std::string weight, std::string_view mask,
           const CountOf& count_of) {
  line.push_back(std::move(weight));
  for (const FittingWord& each : kFittingWords) line.push_back(Text(count_of(each.fitting), mask));
}

void CloseEmpty(std::vector<std::string>& line, std::string weight) {
  line.push_back(std::move(weight));
  line.resize(line.size() + kFittingWords.size());
}

void AppendDiameter(GridRows& rows, const TallyTable& table, int d, const DetailLayout& layout) {
  const int columns = StockColumnsOf(layout);
  auto counts =
      Line(DiameterLabel(d), kCounts, columns, kBlankZeroMask, [&](int l) { return table.BarCount[d][l]; });
  Close(counts, Text(table.StockWeightByDia[d], kBlankZeroMask), kBlankZeroMask,
        [&](Fitting fitting) { return FittingCount(table, d, fitting); });
  rows.push_back(std::move(counts));
  if (!layout.with_weights) return;
  auto weights = Line("", kWeights, columns, kBlankZeroMask, [&](int l) { return table.StockWeight[d][l]; });
  CloseEmpty(weights, "");
  rows.push_back(std::move(weights));
}

std::int64_t BarsOfColumn(const TallyTable& table, int l) {
  std::int64_t bars = 0;
  for (int d = 0; d < kDeformedRows; ++d) bars += table.BarCount[d][l];
  return bars;
}

Currency WeightOfColumn(const TallyTable& table, int l) {
  Currency weight;
  for (int d = 0; d < kDeformedRows; ++d) weight += WholeKilograms(table.StockWeight[d][l]);
  return weight;
}

void AppendTotals(GridRows& rows, const TallyTable& table, int columns) {
  auto counts = Line(kCountTotals, "", columns, kMask, [&](int l) { return BarsOfColumn(table, l); });
  Close(counts, "", kMask, [&](Fitting fitting) { return FittingTotal(table, fitting); });
  rows.push_back(std::move(counts));
  auto weights = Line(kWeightTotals, "", columns, kMask, [&](int l) { return WeightOfColumn(table, l); });
  CloseEmpty(weights, Text(table.TotalStockWeight, kMask) + " ㎏");
  rows.push_back(std::move(weights));
}

}  // namespace

DetailLayout DetailLayoutOf(const SettingsData& settings) {
  return {settings.DetailShowsWeight == 1, settings.Use13mColumn == 1};
}

int StockColumnsOf(const DetailLayout& layout) { return StockColumnsInUse(layout.with_13m); }

std::vector<std::string_view> DetailCaptions(const DetailLayout& layout) {
  std::vector<std::string_view> captions{"", ""};
  if (!layout.with_weights) captions = {kDiameterCaption, kUnitCaption};
  const int columns = StockColumnsOf(layout);
  captions.insert(captions.end(), kStockLengthTexts.begin(), kStockLengthTexts.begin() + columns);
  captions.push_back(kWeightCaption);
  for (const FittingWord& each : kFittingWords) captions.push_back(each.caption);
  return captions;
}

GridRows DetailRows(const TallyTable& table, const DetailLayout& layout) {
  GridRows rows;
  for (int d = 0; d < kDeformedRows; ++d) AppendDiameter(rows, table, d, layout);
  AppendTotals(rows, table, StockColumnsOf(layout));
  return rows;
}

std::optional<DetailCell> CellAt(const DetailLayout& layout, int line, int column) {
  const int lines_of_diameter = layout.with_weights ? 2 : 1;
  const bool holds_counts = line >= 0 && line % lines_of_diameter == 0;
  const int d = line / lines_of_diameter;
  if (!holds_counts || d >= kDeformedRows) return std::nullopt;
  const int columns = StockColumnsOf(layout);
  const int l = column - kNameColumns;
  if (l >= 0 && l < columns) return BarCell{d, l};
  const int fitting = l - columns - 1;  // behind the weight
  if (fitting < 0 || fitting >= static_cast<int>(kFittingWords.size())) return std::nullopt;
  return FittingCell{d, kFittingWords[static_cast<std::size_t>(fitting)].fitting};
}

}  // namespace rbt

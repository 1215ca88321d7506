// SPDX-License-Identifier: MIT
#include "tally/rows/bar_row_reader.h"

#include "platform/fault.h"

namespace rbt {
namespace {

enum Column : std::size_t {
  kPage,
  kLine,
  kPart,
  kDiameter,
  kWeldDiameter,
  kShape,
  kPieces,
  kCutLength,
  kStockLength,
  kStockBars,
  kWelds,
  kThreads,
  kPlates,
  kCuts,
  kKind,
};

constexpr std::array<std::string_view, 15> kColumns = {"頁",     "行",     "部位",     "太さ",   "圧接太さ",
                                                       "形状No", "合計",   "伸切寸",   "伸定尺", "伸総計",
                                                       "圧接",   "ネジ数", "定着板数", "切断",   "予備2"};

constexpr bool MayBeAbsent(std::size_t column) {
  return column == kWeldDiameter || column == kThreads || column == kPlates || column == kCuts;
}

}  // namespace

std::span<const std::string_view> BarRowReader::Columns() { return kColumns; }

BarRowReader::BarRowReader(const RowWalk& rows) {
  for (std::size_t column = 0; column < kColumns.size(); ++column) {
    fields_[column] = MayBeAbsent(column) ? rows.FindField(kColumns[column]) : rows.Field(kColumns[column]);
  }
}

BarRow BarRowReader::Read(const WalkedRow& found) const {
  const auto number = [&](Column column) {
    return fields_[column] ? found.Int32(*fields_[column]) : std::nullopt;
  };
  BarRow row;
  row.page = number(kPage);
  row.line = number(kLine);
  At([&] { return PlaceOf(row); },
     [&] {
       row.part = number(kPart);
       row.diameter_code = number(kDiameter);
       row.weld_diameter_code = number(kWeldDiameter);
       row.shape = number(kShape);
       row.pieces = number(kPieces);
       row.cut_length_mm = number(kCutLength);
       row.stock_length_m = found.Double(*fields_[kStockLength]);
       row.stock_bars = number(kStockBars);
       row.welds = number(kWelds);
       row.threads = number(kThreads);
       row.plates = number(kPlates);
       row.cuts = number(kCuts);
       row.kind = number(kKind);
     });
  return row;
}

}  // namespace rbt

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
  kEnd,
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
  std::array<std::optional<std::int32_t>, kColumns.size()> numbers;
  const auto read = [&](Column first, Column end) {
    found.Int32s(std::span(fields_).subspan(first, end - first),
                 std::span(numbers).subspan(first, end - first));
  };
  BarRow row;
  read(kPage, kPart);
  row.page = numbers[kPage];
  row.line = numbers[kLine];
  At([&] { return PlaceOf(row); },
     [&] {
       read(kPart, kStockLength);
       row.stock_length_m = found.Double(*fields_[kStockLength]);
       read(kStockBars, kEnd);
     });
  row.part = numbers[kPart];
  row.diameter_code = numbers[kDiameter];
  row.weld_diameter_code = numbers[kWeldDiameter];
  row.shape = numbers[kShape];
  row.pieces = numbers[kPieces];
  row.cut_length_mm = numbers[kCutLength];
  row.stock_bars = numbers[kStockBars];
  row.welds = numbers[kWelds];
  row.threads = numbers[kThreads];
  row.plates = numbers[kPlates];
  row.cuts = numbers[kCuts];
  row.kind = numbers[kKind];
  return row;
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "tally/groups/bar_group.h"

#include "tally/rows/bar_row.h"

namespace rbt {

std::string PlaceOf(const BarGroup& group) {
  return "加工テーブル 太さ " + std::to_string(group.diameter_code) + " 形状No " +
         std::to_string(group.shape) + " 伸切寸 " + NumberText(group.cut_length_mm);
}

BarGroupReader::BarGroupReader(const GroupedRows& groups)
    : diameter_(groups.Field("太さ")),
      weld_diameter_(groups.Field("圧接太さ")),
      shape_(groups.Field("形状No")),
      cut_length_(groups.Field("伸切寸")),
      dimensions_(groups.Field("予備5")),
      pieces_(groups.Field("合計本数")),
      welds_(groups.Field("合計圧接")),
      threads_(groups.Field("合計ネジ数")),
      plates_(groups.Field("合計定着板数")),
      stock_length_(groups.FindField("伸定尺")) {}

BarGroup BarGroupReader::Read(const GroupedRows& groups) const {
  BarGroup group;
  group.diameter_code = groups.Int32(diameter_).value_or(0);
  group.weld_diameter_code = groups.Int32(weld_diameter_);
  group.shape = groups.Int32(shape_).value_or(0);
  group.cut_length_mm = groups.Int32(cut_length_);
  group.dimensions = groups.Text(dimensions_);
  if (stock_length_) group.stock_length_m = groups.Double(*stock_length_).value_or(0.0);
  group.pieces = Currency::FromDouble(groups.Double(pieces_).value_or(0.0));
  group.welds = groups.Double(welds_);
  group.threads = groups.Int32(threads_);
  group.plates = groups.Int32(plates_);
  return group;
}

}  // namespace rbt

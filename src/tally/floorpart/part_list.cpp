// SPDX-License-Identifier: MIT
#include "tally/floorpart/part_list.h"

#include <string>

namespace rbt {
namespace {

void ListDiameters(PartTables& tables, int first, int last) {
  for (int r = first; r <= last; ++r) {
    tables.BuiGyou.push_back(
        {std::string(DiameterLabel(r)), tables.BuiTaisaGoukei[r], tables.TaisaGoukei[r]});
    tables.BuiGyouTaisa.emplace_back(r);
  }
}

void ListRowOfNoDiameter(PartTables& tables, ListRow row) {
  tables.BuiGyou.push_back(std::move(row));
  tables.BuiGyouTaisa.emplace_back(std::nullopt);
}

}  // namespace

void ListParts(PartTables& tables, bool thin_rows) {
  tables.BuiGyou.clear();
  tables.BuiGyouTaisa.clear();
  if (thin_rows) {
    ListDiameters(tables, kDeformedRows, kDiameterRows - 1);
    ListRowOfNoDiameter(tables, {std::string(kGapLabel), {}, {}});
  }
  ListDiameters(tables, 0, kDeformedRows - 1);
  ListRowOfNoDiameter(tables, {std::string(kPartTotalLabel), tables.BuiGoukei, tables.SouGoukei});
}

}  // namespace rbt

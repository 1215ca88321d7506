// SPDX-License-Identifier: MIT
#include "tally/views/floorpart_grid.h"

#include "platform/numbers/number_mask.h"

namespace rbt {
namespace {

std::vector<std::string_view> Captions(std::string_view first, const PartNames& names) {
  std::vector<std::string_view> captions{first};
  captions.insert(captions.end(), names.begin(), names.end());
  captions.push_back(kOtherPartsLabel);
  captions.push_back("合計");
  return captions;
}

std::string Kilograms(Currency weight) { return FormatNumber(weight, "#,##0"); }

GridRows ListTexts(const std::vector<ListRow>& list) {
  GridRows rows;
  rows.reserve(list.size());
  for (const ListRow& row : list) {
    std::vector<std::string>& cells = rows.emplace_back();
    cells.push_back(row.label);
    for (int p = kFirstPart; p < kPartEntries; ++p) cells.push_back(Kilograms(row.parts[p]));
    cells.push_back(Kilograms(row.total));
  }
  return rows;
}

}  // namespace

std::vector<std::string_view> FloorCaptions(const PartNames& names) { return Captions("　階　", names); }

std::vector<std::string_view> PartCaptions(const PartNames& names) { return Captions("太さ", names); }

GridRows ShowFloors(const FloorTables& tables) { return ListTexts(tables.KaiGyou); }

GridRows ShowParts(const PartTables& tables) { return ListTexts(tables.BuiGyou); }

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "tally/floorpart/hand_correction.h"

#include <string>

namespace rbt {
namespace {

bool IsListed(const std::vector<ListRow>& list, int list_row, int part) {
  const bool above_total = list_row >= 0 && list_row + 1 < static_cast<int>(list.size());
  return above_total && part >= kFirstPart && part <= kOtherParts;
}

ListRow& RowAt(std::vector<ListRow>& list, int list_row) {
  return list[CheckedIndex(list_row, static_cast<int>(list.size()))];
}

[[noreturn]] void Refuse(int list_row, int part) {
  throw Fault(FaultKind::subscript_out_of_range,
              "cell " + std::to_string(part) + " of row " + std::to_string(list_row));
}

Currency SumOf(const CheckedArray<Currency, kPartEntries>& parts) {
  Currency sum;
  for (int p = kFirstPart; p < kPartEntries; ++p) sum += parts[p];
  return sum;
}

/// The list with the weight in it. A sum may overflow: what stands stays as it is until all sums are there.
std::vector<ListRow> WithCell(std::vector<ListRow> list, int list_row, int part, Currency kilograms) {
  ListRow& row = RowAt(list, list_row);
  row.parts[part] = kilograms;
  row.total = SumOf(row.parts);
  ListRow& totals = list.back();
  totals.parts.Clear();
  totals.total = Currency();
  for (std::size_t i = 0; i + 1 < list.size(); ++i) {
    for (int p = kFirstPart; p < kPartEntries; ++p) totals.parts[p] += list[i].parts[p];
    totals.total += list[i].total;
  }
  return list;
}

}  // namespace

bool MayCorrect(const FloorTables& tables, int list_row, int part) {
  return IsListed(tables.KaiGyou, list_row, part);
}

bool MayCorrect(const PartTables& tables, int list_row, int part) {
  return IsListed(tables.BuiGyou, list_row, part) &&
         tables.BuiGyouTaisa[static_cast<std::size_t>(list_row)].has_value();
}

void CorrectCell(FloorTables& tables, int list_row, int part, Currency kilograms) {
  if (!MayCorrect(tables, list_row, part)) Refuse(list_row, part);
  tables.KaiGyou = WithCell(tables.KaiGyou, list_row, part, kilograms);
  const int f = FloorIndex(tables.KaiGyouKai[static_cast<std::size_t>(list_row)]);
  tables.KaiBuiGoukei[f][part] = kilograms;
  tables.KaiGoukei[f] = RowAt(tables.KaiGyou, list_row).total;
  tables.BuiGoukei = tables.KaiGyou.back().parts;
  tables.SouGoukei = tables.KaiGyou.back().total;
}

void CorrectCell(PartTables& tables, int list_row, int part, Currency kilograms) {
  if (!MayCorrect(tables, list_row, part)) Refuse(list_row, part);
  tables.BuiGyou = WithCell(tables.BuiGyou, list_row, part, kilograms);
  const int r = *tables.BuiGyouTaisa[static_cast<std::size_t>(list_row)];
  tables.BuiTaisaGoukei[r][part] = kilograms;
  tables.TaisaGoukei[r] = RowAt(tables.BuiGyou, list_row).total;
  tables.BuiGoukei = tables.BuiGyou.back().parts;
  tables.SouGoukei = tables.BuiGyou.back().total;
}

}  // namespace rbt

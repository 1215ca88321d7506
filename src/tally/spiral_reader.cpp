// SPDX-License-Identifier: MIT
#include "tally/spiral_reader.h"

namespace rbt {
namespace {

/// Files of sites without spirals have no such table.
bool HasSpiralTable(Database& companion) {
  const auto table = companion.FindTable("スパイラル");
  return table != nullptr && table->FindField("材質") != nullptr && table->FindField("径") != nullptr &&
         table->FindField("全重量") != nullptr;
}

}  // namespace

std::vector<SpiralRow> ReadSpirals(Database& companion) {
  std::vector<SpiralRow> spirals;
  if (!HasSpiralTable(companion)) return spirals;
  Recordset rows = companion.OpenSnapshot(
      "SELECT 材質,径,sum(全重量) as 重量 FROM スパイラル "
      " GROUP BY 材質,径 ORDER BY 材質,径");
  const FieldHandle material = rows.Field("材質");
  const FieldHandle diameter = rows.Field("径");
  const FieldHandle weight = rows.Field("重量");
  for (; !rows.Eof(); rows.MoveNext()) {
    spirals.push_back({rows.Int32(material), rows.Int32(diameter),
                       Currency::FromDouble(rows.Double(weight).value_or(0.0))});
  }
  return spirals;
}

}  // namespace rbt

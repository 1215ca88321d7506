// SPDX-License-Identifier: MIT
#include "tally/rows/row_walk.h"

#include "shell/config/settings.h"
#include "tally/rows/bar_row_reader.h"

namespace rbt {

void FoldRows(TallyTable& table, Database& site, std::string_view statement, const RowRules& rules) {
  RowWalk rows(site, statement, BarRowReader::Columns());
  const BarRowReader reader(rows);
  rows.Run([&](const WalkedRow& row) { FoldRow(table, reader.Read(row), rules); });
}

bool ReadCountHoopWelds() { return ReadSetting(kWeldedHoopWeldsKey) != 0; }

}  // namespace rbt

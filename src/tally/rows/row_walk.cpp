// SPDX-License-Identifier: MIT
#include "tally/rows/row_walk.h"

#include "shell/config/settings.h"
#include "tally/rows/bar_row_reader.h"

namespace rbt {

void FoldRows(TallyTable& table, Database& site, std::string_view statement, const RowRules& rules) {
  Recordset rows = site.OpenSnapshot(statement, BarRowReader::Columns());
  const BarRowReader reader(rows);
  for (; !rows.Eof(); rows.MoveNext()) FoldRow(table, reader.Read(rows), rules);
}

bool ReadCountHoopWelds() { return ReadSetting(kWeldedHoopWeldsKey) != 0; }

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "tally/rows/bulk_statement.h"

#include "tally/clauses.h"

namespace rbt {

std::string BulkStatementSoFar(const SelectionData& selection) {
  std::string statement =
      "SELECT * "
      "FROM 加工テーブル "
      "WHERE 太さ is not NULL AND 伸定尺 is not NULL AND 本数 is not NULL";
  statement += FormClause(selection.MaterialFormMask);
  statement += KindClause(selection.MaterialKindMask);
  return statement;
}

std::string BulkStatement(const SelectionData& selection, bool has_hoop_rows) {
  std::string statement = BulkStatementSoFar(selection);
  if (has_hoop_rows && selection.HoopMode == ShapeFilter::alone) statement += " AND 形状No=87 ";
  statement += AnchorPlateClause(selection.AnchorPlateMode);
  return statement;
}

}  // namespace rbt

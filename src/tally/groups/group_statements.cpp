// SPDX-License-Identifier: MIT
#include "tally/groups/group_statements.h"

#include <fmt/format.h>

#include "tally/clauses.h"
#include "tally/mask_text.h"

namespace rbt {
namespace {

constexpr MaskText<KindMask> kKindClauses[] = {
    {1, " AND (予備2<=1 or 予備2 is NULL) AND 予備2<>2 "},
    {2, " AND 予備2=4 AND 予備2<>2 "},
    {3, " AND (予備2<=1 or 予備2 is NULL or 予備2=4) AND 予備2<>2  "},
    {4, " AND 予備2=3 AND 予備2<>2 "},
    {5, " AND (予備2<=1 or 予備2 is NULL or 予備2=3) AND 予備2<>2 "},
    {6, " AND (予備2=4 or 予備2=3) AND 予備2<>2 "},
    {7, " AND (予備2<=1 or 予備2 is NULL or 予備2=3 or 予備2=4) AND 予備2<>2 "},
    {8, " AND 予備2=5 AND 予備2<>2 "},
    {9, " AND (予備2<=1 or 予備2 is NULL or 予備2=5) AND 予備2<>2 "},
    {10, " AND (予備2=4 or 予備2=5) AND 予備2<>2 "},
    {11, " AND (予備2<=1 or 予備2 is NULL or 予備2=4 or 予備2=5) AND 予備2<>2 "},
    {12, " AND (予備2=3 or 予備2=5) AND 予備2<>2 "},
    {13, " AND (予備2<=1 or 予備2 is NULL or 予備2=3 or 予備2=5) AND 予備2<>2 "},
    {14, " AND (予備2=3 or 予備2=4 or 予備2=5) AND 予備2<>2 "},
    {15, " AND 予備2<>2 "},
};

// Deformed, threaded and slit bars ask for high strength in place of threaded bars: so the users of this
// tally know it, and so it stays.
constexpr MaskText<KindMask> kPageShapeKindClauses[] = {
    {1, "AND ((予備2<=1 or IsNull(予備2)) AND 予備2<>2) "},
    {2, "AND 予備2=4 AND 予備2<>2 "},
    {3, "AND ((予備2<=1 or 予備2=4 or IsNull(予備2)) AND 予備2<>2) "},
    {11, " AND (予備2<=1 or 予備2 is NULL or 予備2=3 or 予備2=5) AND 予備2<>2 "},
};

constexpr std::string_view kNoPlatesAndKnownShape =
    " AND (形状No<138 OR 形状No=139 OR (形状No between 141 And 142) OR (形状No Between 148 And 160) OR "
    "(形状No Between 162 And 163) OR (形状No Between 170 And 174) OR 形状No >=177)";

std::string_view KindClauseByPage(KindMask kinds) {
  const std::string_view own = TextOfMask(kPageShapeKindClauses, kinds);
  return own.empty() ? TextOfMask(kKindClauses, kinds) : own;
}

/// The page-shape tally leaves the plates out in words of its own.
std::string_view PlateClauseByPage(ShapeFilter plates) {
  return plates == ShapeFilter::left_out ? kNoPlatesAndKnownShape : AnchorPlateClause(plates);
}

std::string PlainRange(const SelectionData& selection) {
  return fmt::format(" AND 形状No Between {} AND {}", selection.ShapeStart, selection.ShapeEnd);
}

void Append(GroupStatements& statements, std::string_view text) {
  statements.main += text;
  statements.cuts += text;
}

std::string HoopRange(const SelectionData& selection) {
  switch (selection.HoopMode) {
    case ShapeFilter::left_out:
      return fmt::format(" AND (形状No Between {} AND 86 OR 形状No Between 88 AND {})", selection.ShapeStart,
                         selection.ShapeEnd);
    case ShapeFilter::alone:
      return " AND 形状No =87";
    case ShapeFilter::with_others:
      break;
  }
  return PlainRange(selection);
}

std::string UlbonRange(const SelectionData& selection) {
  switch (selection.HoopMode) {
    case ShapeFilter::left_out:
      return fmt::format(" AND ((形状No Between {} AND 86) OR (形状No Between 88 AND {}))",
                         selection.ShapeStart, selection.ShapeEnd);
    case ShapeFilter::alone:
      return " AND 形状No=87";
    case ShapeFilter::with_others:
      break;
  }
  return fmt::format(" AND 形状No Between {} And {}", selection.ShapeStart, selection.ShapeEnd);
}

}  // namespace

std::string ShapeRows(const SelectionData& selection) {
  return fmt::format("WHERE 太さ > 0 AND 合計 > 0 AND 形状No Between {} AND {}", selection.ShapeStart,
                     selection.ShapeEnd);
}

std::string PageShapeRows(LineRange lines) {
  return fmt::format("WHERE 太さ > 0 AND 合計 > 0 AND Not IsNull(形状No) AND 行No Between {} AND {}",
                     lines.first, lines.last);
}

std::string ShapeUlbonStatement(const SelectionData& selection) {
  return "SELECT 太さ,圧接太さ,形状No,伸切寸,SUM(合計) As 合計本数,"
         "SUM(伸総計) As 合計伸総計,SUM(圧接) As 合計圧接, SUM(ネジ数) AS 合計ネジ数,SUM(定着板数) AS "
         "合計定着板数,SUM(切断) AS 合計切断数, 予備5 "
         "FROM 加工テーブル "
         "WHERE ( 太さ > 0 AND 合計 > 0 AND 予備2 = 2 AND Not IsNull(形状No)) " +
         UlbonRange(selection) + " GROUP BY 太さ,圧接太さ,形状No,伸切寸,予備5 ";
}

std::string ShapeProbeStatement(const SelectionData& selection) {
  return fmt::format("SELECT 形状No FROM 加工テーブル WHERE 形状No Between {} And {}{}", selection.ShapeStart,
                     selection.ShapeEnd, TextOfMask(kKindClauses, selection.MaterialKindMask));
}

GroupStatements ShapeStatements(const SelectionData& selection, bool has_hoop_rows,
                                bool has_anchor_plate_rows) {
  GroupStatements statements = {
      "SELECT 太さ,圧接太さ,形状No,伸切寸,SUM(合計) As 合計本数,伸定尺, "
      "SUM(伸総計) As 合計伸総計,SUM(圧接) As 合計圧接, SUM(ネジ数) AS 合計ネジ数,SUM(定着板数) AS "
      "合計定着板数,予備5 FROM 加工テーブル "
      " WHERE ( 太さ > 0 AND 合計 > 0 AND Not IsNull(形状No) AND 伸定尺 is not NULL ",
      "SELECT 部位,太さ,圧接太さ,SUM(切断) AS 合計切断数 "
      "FROM 加工テーブル WHERE ( 太さ > 0 AND 合計 > 0 AND Not IsNull(形状No) AND 伸定尺 is not NULL "};
  const std::string_view kinds = TextOfMask(kKindClauses, selection.MaterialKindMask);
  // For an unknown mask nothing closes the parenthesis: the store refuses the statement.
  if (!kinds.empty()) Append(statements, std::string(kinds) + ")");
  if (has_hoop_rows) {
    Append(statements, HoopRange(selection));
  } else {
    statements.main += PlainRange(selection);
  }
  if (has_anchor_plate_rows) {
    Append(statements, AnchorPlateClause(selection.AnchorPlateMode));
  }
  return statements;
}

std::string PageShapeUlbonStatement(const SelectionData& selection, LineRange lines) {
  std::string statement = fmt::format(
      "SELECT 太さ,圧接太さ,形状No,伸切寸,SUM(合計) As 合計本数,伸定尺, "
      "SUM(伸総計) As 合計伸総計,SUM(圧接) As 合計圧接, SUM(ネジ数) AS 合計ネジ数,SUM(定着板数) AS "
      "合計定着板数,SUM(切断) AS 合計切断数, 予備5 "
      "FROM 加工テーブル "
      "WHERE ( 太さ > 0 AND 合計 > 0 AND (予備2 = 2 ) AND Not IsNull(形状No)) AND 本数>0 "
      "AND 行No Between {}AND {} ",
      lines.first, lines.last);
  statement += HoopClause(selection.HoopMode);
  statement += kGroupByPieces;
  return statement;
}

GroupStatements PageShapeStatementsSoFar(const SelectionData& selection, LineRange lines) {
  const std::string where = fmt::format(
      "WHERE (太さ > 0 AND 合計 >0 AND Not IsNull(形状NO) AND 伸定尺 is not NULL) AND 行No Between {} AND "
      "{} ",
      lines.first, lines.last);
  GroupStatements statements = {
      "SELECT 太さ,圧接太さ,形状No,伸切寸,SUM(合計) As 合計本数,伸定尺,"
      "SUM(伸総計) As 合計伸総計,SUM(圧接) As 合計圧接,SUM(ネジ数) As 合計ネジ数,SUM(定着板数) As "
      "合計定着板数,予備5 "
      "FROM 加工テーブル ",
      "SELECT 部位,太さ,圧接太さ,SUM(切断) AS 合計切断数 FROM 加工テーブル "};
  Append(statements, where);
  Append(statements, HoopClause(selection.HoopMode));
  Append(statements, KindClauseByPage(selection.MaterialKindMask));
  return statements;
}

GroupStatements PageShapeStatements(const SelectionData& selection, LineRange lines) {
  GroupStatements statements = PageShapeStatementsSoFar(selection, lines);
  Append(statements, PlateClauseByPage(selection.AnchorPlateMode));
  return statements;
}

}  // namespace rbt

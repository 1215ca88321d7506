// SPDX-License-Identifier: MIT
#include "tally/schedule_positions.h"

#include <array>

#include <fmt/format.h>

namespace rbt {
namespace {

constexpr std::array<std::string_view, 1> kLineNumberOnly = {"行No"};

/// A row may stand anywhere in the schedule before its numbers are entered: null is 0.
std::int32_t NumberOrZero(const Recordset& rows, FieldHandle field, std::string_view name) {
  const Value value = rows.Get(field);
  return IsNull(value) ? 0 : Int32Of(value, fmt::format("加工テーブル {}", name));
}

/// The page tally's first row among several of one 行No is that of the lowest page and line. The tally of
/// shapes by page takes them as they come.
std::string_view RowsInOrder(TallyKind kind) {
  return kind == TallyKind::page ? "SELECT 行No, 頁, 行,行No "
                                   "FROM 加工テーブル ORDER BY 行No,頁,行"
                                 : "SELECT 行No, 頁, 行 "
                                   "FROM 加工テーブル"
                                   " ORDER BY 行No";
}

}  // namespace

std::int32_t LineNumberAt(Database& site, SchedulePosition position) {
  Recordset rows = site.OpenSnapshot(
      fmt::format("SELECT * FROM 加工テーブル WHERE 頁 = {} AND 行 = {}", position.page, position.line),
      kLineNumberOnly);
  const FieldHandle number = rows.Field("行No");
  std::int32_t last = 0;
  for (; !rows.Eof(); rows.MoveNext()) last = NumberOrZero(rows, number, "行No");
  return last;
}

LineRange LinesBetween(Database& site, const PositionRange& positions) {
  return {LineNumberAt(site, positions.first), LineNumberAt(site, positions.last)};
}

std::optional<PositionRange> WholePositionRange(Database& site, TallyKind kind) {
  Recordset rows = site.OpenSnapshot(RowsInOrder(kind));
  if (rows.Eof()) return std::nullopt;
  const FieldHandle page = rows.Field("頁");
  const FieldHandle line = rows.Field("行");
  const auto position = [&] {
    return SchedulePosition{NumberOrZero(rows, page, "頁"), NumberOrZero(rows, line, "行")};
  };
  PositionRange range = {position(), {}};
  for (std::int64_t left = rows.RecordCount() - 1; left > 0; --left) rows.MoveNext();
  range.last = position();
  return range;
}

Value GetKeijouNoSQL(Database& site, std::string_view expression, std::string_view where_clause) {
  const Recordset rows =
      site.OpenSnapshot(fmt::format("SELECT {} From 加工テーブル {}", expression, where_clause));
  return rows.Eof() ? Value{} : rows.Get(FieldHandle{0});
}

ShapeRange WholeShapeRange(Database& site, const std::optional<LineRange>& lines) {
  const std::string where =
      lines ? fmt::format(" WHERE 行No Between {} And {}", lines->first, lines->last) : " ";
  const auto shape = [&](std::string_view expression) {
    const Value value = GetKeijouNoSQL(site, expression, where);
    return IsNull(value) ? 0 : Int32Of(value, "加工テーブル 形状No");
  };
  return {shape("Min(形状No)"), shape("Max(形状No)")};
}

void TakeShapes(SelectionData& selection, const ShapeRange& shapes) {
  selection.ShapeStart = shapes.first;
  selection.ShapeEnd = shapes.last;
}

void TakePositions(SelectionData& selection, const PositionRange& positions) {
  selection.StartPage = positions.first.page;
  selection.StartLine = positions.first.line;
  selection.EndPage = positions.last.page;
  selection.EndLine = positions.last.line;
}

}  // namespace rbt

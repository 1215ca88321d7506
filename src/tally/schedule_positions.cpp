// SPDX-License-Identifier: MIT
#include "tally/schedule_positions.h"

#include <array>
#include <tuple>
#include <utility>

#include <fmt/format.h>

#include "platform/pass_over_faults.h"
#include "store/row_walk.h"

namespace rbt {
namespace {

constexpr std::array<std::string_view, 1> kLineNumberOnly = {"行No"};
constexpr std::array<std::string_view, 3> kPlaceColumns = {"行No", "頁", "行"};

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

/// By all rows in their order.
std::optional<PositionRange> EndsOfSorted(Database& site, TallyKind kind) {
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

/// A row as far as the order of rows goes; null comes first.
struct PlacedRow {
  std::optional<std::int32_t> number;
  std::optional<std::int32_t> page;
  std::optional<std::int32_t> line;

  SchedulePosition Position() const { return {page.value_or(0), line.value_or(0)}; }
  bool IsBefore(const PlacedRow& other, TallyKind kind) const {
    if (kind != TallyKind::page) return number < other.number;
    return std::tie(number, page, line) < std::tie(other.number, other.page, other.line);
  }
};

/// The same without sorting: nothing in `range` for a schedule without rows. False where a row holds what
/// only the store can put into order.
bool FindEnds(Database& site, TallyKind kind, std::optional<PositionRange>& range) {
  RowWalk rows(site, "SELECT * FROM 加工テーブル", kPlaceColumns);
  const FieldHandle number = rows.Field("行No");
  const FieldHandle page = rows.Field("頁");
  const FieldHandle line = rows.Field("行");
  std::optional<std::pair<PlacedRow, PlacedRow>> ends;
  bool is_plain = true;
  rows.Run([&](const WalkedRow& found) {
    is_plain = is_plain && found.IsPlain(number) && found.IsPlain(page) && found.IsPlain(line);
    if (!is_plain) return;
    const PlacedRow row = {found.Int32(number), found.Int32(page), found.Int32(line)};
    if (!ends) ends.emplace(row, row);
    // Rows that are equal keep the table's order.
    if (row.IsBefore(ends->first, kind)) ends->first = row;
    if (!row.IsBefore(ends->second, kind)) ends->second = row;
  });
  if (is_plain && ends) range = PositionRange{ends->first.Position(), ends->second.Position()};
  return is_plain;
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
  std::optional<PositionRange> range;
  bool is_told = false;
  // What faults here faults in the sorted statement, in its own words.
  PassOverFaults([&] { is_told = FindEnds(site, kind, range); });
  return is_told ? range : EndsOfSorted(site, kind);
}

std::vector<Value> GetKeijouNoSQL(Database& site, std::string_view expression,
                                  std::string_view where_clause) {
  const Recordset rows =
      site.OpenSnapshot(fmt::format("SELECT {} From 加工テーブル {}", expression, where_clause));
  std::vector<Value> values;
  for (int field = 0; field < rows.FieldCount() && !rows.Eof(); ++field)
    values.push_back(rows.Get(FieldHandle{field}));
  return values;
}

ShapeRange WholeShapeRange(Database& site, const std::optional<LineRange>& lines) {
  const std::string where =
      lines ? fmt::format(" WHERE 行No Between {} And {}", lines->first, lines->last) : " ";
  const std::vector<Value> ends = GetKeijouNoSQL(site, "Min(形状No),Max(形状No)", where);
  const auto shape = [&](std::size_t end) {
    return IsNull(ends.at(end)) ? 0 : Int32Of(ends.at(end), "加工テーブル 形状No");
  };
  return {shape(0), shape(1)};
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

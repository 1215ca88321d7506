// SPDX-License-Identifier: MIT
#include "tally/names/name_list.h"

#include <string_view>

#include <fmt/format.h>

#include "platform/numbers/value.h"

namespace rbt {

namespace {

constexpr std::string_view StatementOf(NameOrder order) {
  return order == NameOrder::by_name ? "SELECT * FROM 登録名 ORDER BY 登録名 "
                                     : "SELECT * FROM 登録名 ORDER BY 登録AN ";
}

/// A weight of the list, 0 where the column is not there or null.
Currency WeightOf(const Recordset& rows, const std::optional<FieldHandle>& field) {
  return field ? AmountOf(rows.Get(*field), "登録名") : Currency();
}

void WriteMarks(Database& companion, std::span<const std::int32_t> numbers, bool marked) {
  for (const std::int32_t number : numbers) {
    companion.Execute(fmt::format("UPDATE 登録名 SET 表示番号={} WHERE 登録AN = {}", marked ? 1 : 0, number));
  }
}

}  // namespace

std::vector<RegisteredName> ReadNames(Database& companion, NameOrder order) {
  Recordset rows = companion.OpenSnapshot(StatementOf(order));
  const FieldHandle number = rows.Field("登録AN");
  const FieldHandle name = rows.Field("登録名");
  const FieldHandle mark = rows.Field("表示番号");
  const auto stock = rows.FindField("定尺重量合計");
  const auto installed = rows.FindField("取付重量合計");
  std::vector<RegisteredName> names;
  for (; !rows.Eof(); rows.MoveNext()) {
    names.push_back({.number = rows.Int32(number),
                     .name = rows.Text(name).value_or(""),
                     .marked = rows.Int32(mark) == 1,
                     .stock = WeightOf(rows, stock),
                     .installed = WeightOf(rows, installed)});
  }
  return names;
}

std::vector<std::int32_t> MarkedNumbers(Database& companion) {
  Recordset rows = companion.OpenSnapshot(
      "SELECT * "
      "FROM 登録名 "
      "WHERE 表示番号=1 ORDER BY 登録AN");
  const FieldHandle number = rows.Field("登録AN");
  std::vector<std::int32_t> numbers;
  for (; !rows.Eof(); rows.MoveNext()) {
    if (const auto found = rows.Int32(number)) numbers.push_back(*found);
  }
  return numbers;
}

void MarkNames(Database& companion, std::span<const std::int32_t> numbers, bool marked) {
  Transaction transaction(companion);
  WriteMarks(companion, numbers, marked);
  transaction.Commit();
}

void HoldMarks(Database& companion, std::span<const std::int32_t> numbers) {
  Transaction transaction(companion);
  companion.Execute("UPDATE 登録名 SET 表示番号=0");
  WriteMarks(companion, numbers, true);
  transaction.CommitAndHold();
}

void MarkNamesBetween(Database& companion, std::int32_t first, std::int32_t last) {
  companion.Execute(fmt::format("UPDATE 登録名 SET 表示番号=1 WHERE 登録AN BETWEEN {} AND {}", first, last));
}

bool HasName(Database& companion, std::int32_t number) {
  return companion.HasRows(fmt::format("SELECT * FROM 登録名 WHERE 登録AN = {}", number));
}

}  // namespace rbt

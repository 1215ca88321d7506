// SPDX-License-Identifier: MIT
#include "shell/live/origins.h"

#include <fmt/format.h>

#include "data/quoted_text.h"
#include "platform/fault.h"
#include "shell/live/working_copy.h"

namespace rbt {

namespace {

constexpr std::string_view kTables = "~jet_tables";
constexpr std::string_view kRows = "~jet_rows";

TableDef TablesLayout() {
  return {std::string(kTables), {{"number", FieldType::integer32}, {"name", FieldType::text, 64}}, {}};
}

/// A table of its own, without a key: to note a row costs as little as can be. The index comes at the end.
TableDef RowsLayout() {
  return {std::string(kRows),
          {{"of_table", FieldType::integer32},
           {"of_row", FieldType::integer32},
           {"page", FieldType::integer32},
           {"slot", FieldType::integer32}},
          {}};
}

TableDef Made(Database& working_copy, TableDef table) {
  working_copy.CreateTable(table);
  return table;
}

void Append(BulkInsert& insert, const std::vector<Value>& values) {
  if (const auto refused = insert.Append(values)) {
    throw Fault(FaultKind::database, "the place of a row: " + *refused);
  }
}

}  // namespace

OriginsWriter::OriginsWriter(Database& working_copy)
    : working_copy_(working_copy),
      tables_(working_copy, Made(working_copy, TablesLayout())),
      rows_(working_copy, Made(working_copy, RowsLayout())) {}

void OriginsWriter::Note(const jet::TakenRow& row) {
  if (number_ == 0 || row.table != table_) {
    table_ = row.table;
    Append(tables_, {Value{++number_}, Value{table_}});
  }
  values_.assign({Value{number_}, Value{row.number}, Value{std::int64_t{row.place.page}},
                  Value{std::int64_t{row.place.slot}}});
  Append(rows_, values_);
}

void OriginsWriter::Finish() {
  working_copy_.AppendIndex(kRows, {.name = "by_row", .unique = true, .fields = {"of_table", "of_row"}});
}

std::optional<JetPlace> JetPlaceOf(Database& working_copy, std::string_view table, std::int64_t row) {
  if (working_copy.FindTable(kRows) == nullptr) return std::nullopt;
  const Recordset number = working_copy.OpenSnapshot(
      fmt::format("SELECT [number] FROM [{}] WHERE [name] = {}", kTables, QuotedText(table, '\'')));
  if (number.Eof()) return std::nullopt;
  const Recordset place = working_copy.OpenSnapshot(
      fmt::format("SELECT [page], [slot] FROM [{}] WHERE [of_table] = {} AND [of_row] = {}", kRows,
                  number.Int32(FieldHandle{0}).value_or(0), row));
  if (place.Eof()) return std::nullopt;
  return JetPlace{static_cast<std::uint32_t>(place.Int32(FieldHandle{0}).value_or(0)),
                  static_cast<std::uint8_t>(place.Int32(FieldHandle{1}).value_or(0))};
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "store/row_walk.h"

#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "platform/text/characters.h"
#include "store/column_search.h"
#include "store/database_impl.h"
#include "store/row_taker.h"
#include "store/stored_value.h"

namespace rbt {
class RowWalk::Impl {
 public:
  struct Column {
    std::string name;
    std::string folded_name;
  };

  Impl(Database& database, std::string_view jet_sql, SelectStatement select)
      : database_(database),
        text_(jet_sql),
        table_(select.tables.front()),
        asked_of_scan_(std::move(select.rows_of_scan)),
        rows_(database.impl().Connected().Prepare(select.sql, jet_sql)) {
    columns_.reserve(select.columns.size());
    for (const auto& column : select.columns) columns_.push_back({column.name, FoldIdentifier(column.name)});
  }

  std::optional<FieldHandle> FindField(std::string_view name) const { return FindColumn(columns_, name); }

  /// A snapshot's first row is read before its fields are looked for.
  [[noreturn]] void ThrowNotFound(std::string_view name) const {
    database_.HasRows(text_);
    throw Fault{FaultKind::field_not_found,
                fmt::format("{}: {}: {}", FieldPlace{table_, name}.Text(), database_.File().string(), text_)};
  }

  FieldPlace PlaceOf(FieldHandle field) const {
    return {table_, columns_[static_cast<std::size_t>(field.index)].name};
  }

  void Run(const RowTaker& take) { TakeRows(rows_, take); }

  const std::optional<RowsOfScan>& AskedOfScan() const { return asked_of_scan_; }
  const std::string& TableName() const { return table_; }

 private:
  Database& database_;
  std::string text_;
  std::string table_;
  std::optional<RowsOfScan> asked_of_scan_;
  Statement rows_;
  std::vector<Column> columns_;
};

std::optional<std::int32_t> WalkedRow::Int32(FieldHandle field) const {
  sqlite3_value* const value = values_[field.index];
  if (sqlite3_value_type(value) == SQLITE_INTEGER) {
    const std::int64_t whole = sqlite3_value_int64(value);
    const auto narrow = static_cast<std::int32_t>(whole);
    if (narrow == whole) return narrow;  // nearly always; the rest is for faults to name its place
  }
  return ReadInt32(value, walk_.impl_->PlaceOf(field));
}

void WalkedRow::Int32s(std::span<const std::optional<FieldHandle>> fields,
                       std::span<std::optional<std::int32_t>> numbers) const {
  for (std::size_t i = 0; i < fields.size(); ++i) {
    numbers[i] = fields[i] ? Int32(*fields[i]) : std::nullopt;
  }
}

std::optional<double> WalkedRow::Double(FieldHandle field) const {
  sqlite3_value* const value = values_[field.index];
  if (sqlite3_value_type(value) == SQLITE_FLOAT) return sqlite3_value_double(value);
  return ReadDouble(value, walk_.impl_->PlaceOf(field));
}

bool WalkedRow::IsPlain(FieldHandle field) const {
  sqlite3_value* const value = values_[field.index];
  const int type = sqlite3_value_type(value);
  if (type != SQLITE_INTEGER) return type == SQLITE_NULL;
  const std::int64_t whole = sqlite3_value_int64(value);
  return whole == static_cast<std::int32_t>(whole);
}

RowWalk::RowWalk(Database& database, std::string_view jet_sql, std::span<const std::string_view> fields)
    : impl_(std::make_unique<Impl>(
          database, jet_sql, database.impl().TranslateSelect(jet_sql, {.fields = fields, .walked = true}))) {}

RowWalk::~RowWalk() = default;

std::optional<FieldHandle> RowWalk::FindField(std::string_view name) const { return impl_->FindField(name); }

FieldHandle RowWalk::Field(std::string_view name) const {
  const auto field = FindField(name);
  if (!field) impl_->ThrowNotFound(name);
  return *field;
}

const RowsOfScan* RowWalk::AskedOfScan() const {
  const auto& asked = impl_->AskedOfScan();
  return asked ? &*asked : nullptr;
}

const std::string& RowWalk::TableName() const { return impl_->TableName(); }

void RowWalk::Run(const std::function<void(const WalkedRow& row)>& take) {
  impl_->Run([&](sqlite3_value** values) { take(WalkedRow(*this, values)); });
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "store/grouped_rows.h"

#include <vector>

#include "platform/numbers/number_words.h"
#include "platform/text/characters.h"
#include "store/column_search.h"
#include "store/database_impl.h"
#include "store/group_table.h"
#include "store/row_taker.h"
#include "store/stored_value.h"

namespace rbt {

namespace {

/// Thrown through a walk that comes upon a row which only the store itself can group.
struct StoreMustGroup {};

}  // namespace

class GroupedRows::Groups {
 public:
  /// Null where the store itself has to group.
  static std::unique_ptr<Groups> Of(Database& database, std::string_view jet_sql,
                                    const SelectStatement& select) {
    const auto& rows = select.rows_to_group;
    if (!rows || rows->handed > GroupTable::kMostValues) return nullptr;
    std::unique_ptr<Groups> groups(new Groups(select));
    Statement statement = database.impl().Connected().Prepare(rows->sql, jet_sql);
    try {
      TakeRows(statement, [&](sqlite3_value** values) {
        if (!groups->table_.Add(values)) throw StoreMustGroup();
      });
    } catch (const StoreMustGroup&) {
      return nullptr;
    }
    groups->table_.Sort();
    return groups;
  }

  bool Eof() const { return current_ >= table_.Size(); }
  void MoveNext() { ++current_; }

  std::optional<FieldHandle> FindField(std::string_view name) const { return FindColumn(columns_, name); }

  std::optional<std::int32_t> Int32(FieldHandle field) const {
    const std::size_t value = ColumnOf(field).value;
    if (table_.IsNull(current_, value)) return std::nullopt;
    if (table_.KindOf(value) == Key::whole) return NarrowInt32(table_.Whole(current_, value), PlaceOf(field));
    return ToInt32(*Double(field), PlaceOf(field).Text());
  }

  std::optional<double> Double(FieldHandle field) const {
    const std::size_t value = ColumnOf(field).value;
    if (table_.IsNull(current_, value)) return std::nullopt;
    switch (table_.KindOf(value)) {
      case Key::real:
        return table_.Real(current_, value);
      case Key::text:
        return NumberOfText(table_.Text(current_, value), PlaceOf(field).Text());
      case Key::whole:
        break;
    }
    return static_cast<double>(table_.Whole(current_, value));
  }

  std::optional<std::string> Text(FieldHandle field) const {
    const std::size_t value = ColumnOf(field).value;
    if (table_.IsNull(current_, value)) return std::nullopt;
    switch (table_.KindOf(value)) {
      case Key::real:
        return TextOf(table_.Real(current_, value));
      case Key::text:
        return std::string(table_.Text(current_, value));
      case Key::whole:
        break;
    }
    return TextOf(table_.Whole(current_, value));
  }

 private:
  using Key = GroupTable::Key;

  struct Column {
    std::string name;
    std::string folded_name;
    std::size_t value = 0;  ///< its place in the table's rows
  };

  explicit Groups(const SelectStatement& select)
      : table_(select.rows_to_group->keys, select.rows_to_group->handed - select.rows_to_group->keys.size()),
        table_name_(select.tables.front()) {
    columns_.reserve(select.columns.size());
    for (const auto& column : select.columns) {
      const std::size_t value = select.rows_to_group->columns[columns_.size()];
      columns_.push_back({column.name, FoldIdentifier(column.name), value});
    }
  }

  FieldPlace PlaceOf(FieldHandle field) const { return {table_name_, ColumnOf(field).name}; }
  const Column& ColumnOf(FieldHandle field) const { return columns_[static_cast<std::size_t>(field.index)]; }

  GroupTable table_;
  std::string table_name_;
  std::vector<Column> columns_;
  std::size_t current_ = 0;
};

GroupedRows::GroupedRows(Database& database, std::string_view jet_sql)
    : database_(database),
      text_(jet_sql),
      groups_(
          Groups::Of(database, jet_sql, database.impl().TranslateSelect(jet_sql, {.rows_to_group = true}))) {
  if (!groups_) snapshot_ = std::make_unique<Recordset>(database.OpenSnapshot(jet_sql));
}

GroupedRows::~GroupedRows() = default;

bool GroupedRows::Eof() const { return groups_ ? groups_->Eof() : snapshot_->Eof(); }

void GroupedRows::MoveNext() {
  if (!groups_) return snapshot_->MoveNext();
  groups_->MoveNext();
}

FieldHandle GroupedRows::Field(std::string_view name) const {
  const auto field = FindField(name);
  return field ? *field : database_.OpenSnapshot(text_).Field(name);
}

std::optional<FieldHandle> GroupedRows::FindField(std::string_view name) const {
  return groups_ ? groups_->FindField(name) : snapshot_->FindField(name);
}

std::optional<std::int32_t> GroupedRows::Int32(FieldHandle field) const {
  return groups_ ? groups_->Int32(field) : snapshot_->Int32(field);
}

std::optional<double> GroupedRows::Double(FieldHandle field) const {
  return groups_ ? groups_->Double(field) : snapshot_->Double(field);
}

std::optional<std::string> GroupedRows::Text(FieldHandle field) const {
  return groups_ ? groups_->Text(field) : snapshot_->Text(field);
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/group_table.h"
#include "store/recordset.h"
#include "store/stored_value.h"

namespace rbt {

/// The groups of a grouping SELECT, gathered row by row and then read forward.
class GatheredGroups {
 public:
  /// Null where only the store itself can group the statement's rows.
  static std::unique_ptr<GatheredGroups> For(const SelectStatement& select);

  /// Takes a row in, of the values that the statement's `rows_to_group` asks for. False, then and from then
  /// on, for rows that only the store itself can group.
  bool Add(sqlite3_value** values);
  /// After the last row; false where there was one that only the store itself can group.
  bool Close();

  bool Eof() const { return current_ >= table_.Size(); }
  void MoveNext() { ++current_; }

  /// As those of `Recordset`.
  std::optional<FieldHandle> FindField(std::string_view name) const;
  std::optional<std::int32_t> Int32(FieldHandle field) const;
  std::optional<double> Double(FieldHandle field) const;
  std::optional<std::string> Text(FieldHandle field) const;

 private:
  using Key = GroupTable::Key;

  struct Column {
    std::string name;
    std::string folded_name;
    std::size_t value = 0;  ///< its place in the table's rows
  };

  explicit GatheredGroups(const SelectStatement& select);

  FieldPlace PlaceOf(FieldHandle field) const { return {table_name_, ColumnOf(field).name}; }
  const Column& ColumnOf(FieldHandle field) const { return columns_[static_cast<std::size_t>(field.index)]; }

  GroupTable table_;
  std::string table_name_;
  std::vector<Column> columns_;
  bool store_must_group_ = false;
  std::size_t current_ = 0;
};

}  // namespace rbt

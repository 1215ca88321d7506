// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "store/database.h"

struct sqlite3_value;

namespace rbt {

class RowWalk;
struct RowsOfScan;

/// The row that a walk has come to, as long as it is taken.
class WalkedRow {
 public:
  /// As those of `Recordset`.
  std::optional<std::int32_t> Int32(FieldHandle field) const;
  std::optional<double> Double(FieldHandle field) const;
  /// Several at once, in their order; null for a field that is nothing. `numbers` is as long as `fields`.
  void Int32s(std::span<const std::optional<FieldHandle>> fields,
              std::span<std::optional<std::int32_t>> numbers) const;
  /// Null, or a whole number of 32 bits stored as one: nothing that reading or adding up could fault at.
  bool IsPlain(FieldHandle field) const;

 private:
  friend class RowWalk;
  friend class SharedScan;
  WalkedRow(const RowWalk& walk, sqlite3_value** values) : walk_(walk), values_(values) {}

  const RowWalk& walk_;
  sqlite3_value** values_;
};

/// All rows of a SELECT one after the other, for sums over many: as a snapshot gives them, with the same
/// faults at the same rows, but handed over inside the statement, which is less work for each row.
class RowWalk {
 public:
  /// `fields` narrows a `SELECT *`, see `Database::OpenSnapshot`. Must not outlive the database.
  RowWalk(Database& database, std::string_view jet_sql, std::span<const std::string_view> fields = {});
  RowWalk(const RowWalk&) = delete;
  RowWalk& operator=(const RowWalk&) = delete;
  ~RowWalk();

  /// As those of `Recordset`.
  FieldHandle Field(std::string_view name) const;
  std::optional<FieldHandle> FindField(std::string_view name) const;

  /// What `take` throws ends the walk and comes through. Once.
  void Run(const std::function<void(const WalkedRow& row)>& take);

 private:
  friend class WalkedRow;
  friend class SharedScan;
  class Impl;

  /// What the walk asks of a scan of its table; null where only its own statement gives its rows in order.
  const RowsOfScan* AskedOfScan() const;
  const std::string& TableName() const;

  std::unique_ptr<Impl> impl_;
};

}  // namespace rbt

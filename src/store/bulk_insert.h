// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "platform/numbers/value.h"
#include "store/database.h"

namespace rbt {

/// Appends whole rows to a table by one prepared statement, for imports. An updatable recordset would ask for
/// the next autonumber of every row, which here comes with it. Must not outlive its database.
class BulkInsert {
 public:
  /// `table`: a table of the database with the fields that the rows bring, in their order.
  BulkInsert(Database& database, const TableDef& table);
  BulkInsert(const BulkInsert&) = delete;
  BulkInsert& operator=(const BulkInsert&) = delete;
  ~BulkInsert();

  /// Appends a row; its values are parallel to the fields. Nothing when it was taken, else why it was
  /// refused: a value that its field cannot hold, a null in a key, a key that is there already. What the file
  /// is not able to take throws `database`.
  std::optional<std::string> Append(std::span<const Value> values);
  /// The number of the row that was taken last, by which the store knows it in its table.
  std::int64_t LastRow() const;
  /// Lets the autonumber key, if the table has one, go on behind `last`, its row there or not. 0 and numbers
  /// that a LONG does not hold tell nothing of the next one.
  void NumberFrom(std::uint32_t last);

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace rbt

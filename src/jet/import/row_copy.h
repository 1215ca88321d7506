// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "jet/import/import_report.h"
#include "jet/import/table_mapping.h"
#include "store/bulk_insert.h"
#include "store/database.h"

namespace rbt::jet {

/// Copies the rows of a table into the store's table of its mapping, which is there and empty: in the order
/// of the primary key, or as they lie when there is none. Reading and writing are steps of their own, so that
/// damage of the Jet file and a full disk can be told apart.
class RowCopy {
 public:
  /// `warnings` gets why the rows were looked for otherwise than by the file's own maps.
  RowCopy(JetFile& file, const TableMapping& mapping, Database& target, std::vector<std::string>& warnings);
  RowCopy(const RowCopy&) = delete;
  RowCopy& operator=(const RowCopy&) = delete;

  /// Reads a row; false behind the last one.
  bool ReadNext();
  /// Appends the row that was read; returns its number in the store. One with a value that the store cannot
  /// hold, or with a key that is there already, is refused and named, and has none; what the file to write is
  /// not able to take throws.
  std::optional<std::int64_t> Append();
  /// Where the row that was read stands in the Jet file.
  RowPointer Place() const { return places_[next_ - 1]; }
  /// An autonumber goes on behind the last number that the Jet file has given, its row gone or not.
  void Finish();
  const ImportedTable& Result() const { return imported_; }

 private:
  JetFile& file_;
  const TableMapping& mapping_;
  std::vector<RowPointer> places_;
  std::size_t next_ = 0;
  std::vector<Value> values_;
  BulkInsert insert_;
  ImportedTable imported_;
};

}  // namespace rbt::jet

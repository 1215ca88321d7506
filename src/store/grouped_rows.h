// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "store/database.h"

namespace rbt {

class GatheredGroups;

/// The groups of a SELECT with GROUP BY, read forward: those that a snapshot gives, in its order, with its
/// faults. Fields that are grouped by and sums of whole numbers are grouped without sorting all rows;
/// whatever else there is, the snapshot itself gives.
class GroupedRows {
 public:
  /// Must not outlive the database.
  GroupedRows(Database& database, std::string_view jet_sql);
  GroupedRows(const GroupedRows&) = delete;
  GroupedRows& operator=(const GroupedRows&) = delete;
  ~GroupedRows();

  bool Eof() const;
  void MoveNext();

  /// As those of `Recordset`.
  FieldHandle Field(std::string_view name) const;
  std::optional<FieldHandle> FindField(std::string_view name) const;
  std::optional<std::int32_t> Int32(FieldHandle field) const;
  std::optional<double> Double(FieldHandle field) const;
  std::optional<std::string> Text(FieldHandle field) const;

 private:
  friend class SharedScan;
  /// Without groups the snapshot gives them.
  GroupedRows(Database& database, std::string_view jet_sql, std::unique_ptr<GatheredGroups> groups);

  Database& database_;
  std::string text_;
  std::unique_ptr<GatheredGroups> groups_;  ///< grouped here
  std::unique_ptr<Recordset> snapshot_;     ///< where they could not be
};

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "store/grouped_rows.h"
#include "store/row_walk.h"

namespace rbt {

/// Several statements over one table that are read in one scan of it: to come to the rows is a good part of
/// what each of them costs.
class SharedScan {
 public:
  /// Must not outlive the database.
  explicit SharedScan(Database& database);
  SharedScan(const SharedScan&) = delete;
  SharedScan& operator=(const SharedScan&) = delete;
  ~SharedScan();

  /// Joins the groups of a SELECT in. Throws what is wrong with the statement.
  void AddGroups(std::string_view jet_sql);
  /// Joins a walk in, which must outlive the scan.
  void AddWalk(const RowWalk& walk, std::function<void(const WalkedRow& row)> take);
  /// Reads all that has joined in. False, and nothing was read, where they are not of one table or come in
  /// another order than the table's. Throws what reading throws, and what is thrown by whoever takes a row.
  bool Run();

  /// The groups of a SELECT: as the scan has read them, once, else as the statement by itself gives them.
  GroupedRows Groups(std::string_view jet_sql);

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace rbt

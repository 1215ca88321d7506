// SPDX-License-Identifier: MIT
#include "store/shared_scan.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "store/database_impl.h"
#include "store/dialect/quoting.h"
#include "store/gathered_groups.h"
#include "store/row_taker.h"

namespace rbt {

class SharedScan::Impl {
 public:
  explicit Impl(Database& database) : database_(database) {}

  Database& Site() { return database_; }

  void AddGroups(std::string_view jet_sql) {
    SelectStatement select = database_.impl().TranslateSelect(jet_sql, {.rows_to_group = true});
    auto groups = GatheredGroups::For(select);
    can_share_ = can_share_ && groups != nullptr;
    if (!can_share_) return;
    Join(select.tables.front(), std::move(select.rows_to_group->rows),
         [gathered = groups.get()](sqlite3_value** values) { gathered->Add(values); });
    groups_.emplace_back(jet_sql, std::move(groups));
  }

  void AddRows(const std::string& table, const RowsOfScan* rows, RowTaker take) {
    can_share_ = can_share_ && rows != nullptr;
    if (can_share_) Join(table, *rows, std::move(take));
  }

  bool Run() {
    if (!can_share_ || takers_.empty()) return false;
    // An index would bring its own order.
    const std::string sql =
        fmt::format("SELECT {} FROM {} NOT INDEXED", fmt::join(asked_, ", "), dialect::QuoteName(table_));
    Statement statement = database_.impl().Connected().Prepare(sql);
    TakeRows(statement, takers_);
    was_read_ = true;
    return true;
  }

  /// Null where they were not read, or only the store can group them.
  std::unique_ptr<GatheredGroups> Take(std::string_view jet_sql) {
    if (!was_read_) return nullptr;
    const auto found = std::ranges::find_if(groups_, [&](const auto& each) { return each.first == jet_sql; });
    if (found == groups_.end() || found->second == nullptr) return nullptr;
    auto groups = std::move(found->second);
    return groups->Close() ? std::move(groups) : nullptr;
  }

 private:
  void Join(const std::string& table, RowsOfScan rows, RowTaker take) {
    if (takers_.empty()) table_ = table;
    can_share_ = table == table_;
    takers_.push_back(std::move(take));
    std::string call = fmt::format("{}(?{}, {})", kEachRow, takers_.size(), fmt::join(rows.values, ", "));
    if (!rows.condition.empty()) call += fmt::format(" FILTER (WHERE {})", rows.condition);
    asked_.push_back(std::move(call));
  }

  Database& database_;
  bool can_share_ = true;
  bool was_read_ = false;
  std::string table_;
  std::vector<std::string> asked_;  ///< of each row, by each that has joined in
  std::vector<RowTaker> takers_;
  std::vector<std::pair<std::string, std::unique_ptr<GatheredGroups>>> groups_;  ///< by their statements
};

SharedScan::SharedScan(Database& database) : impl_(std::make_unique<Impl>(database)) {}

SharedScan::~SharedScan() = default;

void SharedScan::AddGroups(std::string_view jet_sql) { impl_->AddGroups(jet_sql); }

void SharedScan::AddWalk(const RowWalk& walk, std::function<void(const WalkedRow& row)> take) {
  impl_->AddRows(walk.TableName(), walk.AskedOfScan(),
                 [&walk, take = std::move(take)](sqlite3_value** values) { take(WalkedRow(walk, values)); });
}

bool SharedScan::Run() { return impl_->Run(); }

GroupedRows SharedScan::Groups(std::string_view jet_sql) {
  if (auto groups = impl_->Take(jet_sql)) return {impl_->Site(), jet_sql, std::move(groups)};
  return {impl_->Site(), jet_sql};
}

}  // namespace rbt

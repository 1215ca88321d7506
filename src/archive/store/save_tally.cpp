// SPDX-License-Identifier: MIT
#include "archive/store/save_tally.h"

#include <fmt/format.h>

#include "archive/store/saved_rows.h"
#include "data/reference.h"
#include "platform/fault.h"
#include "shell/context/reference_names.h"
#include "shell/context/site_context.h"

namespace rbt {

namespace {

std::vector<std::string> RowStatements(const TallyResult& result, const RowOrder& order) {
  switch (result.kind) {
    case TallyKind::floor:
      return FloorStatements(result, order);
    case TallyKind::part:
      return PartStatements(result, order);
    default:
      return GridStatements(result, order);
  }
}

std::string NameStatement(const TallyResult& result, const SaveOrder& order) {
  ArchiveRow row("重量集計名称");
  row.Put(order.key).Put("重量集計名称", std::string_view(order.name));
  row.Put("集計区分", static_cast<std::int32_t>(result.kind));
  row.Put("溶接閉鎖型", static_cast<std::int32_t>(result.selection.HoopMode));
  row.Put("合計値変更", WasCorrected(result) ? 1 : 0);
  row.PutOrNull("メモ１", order.memos[0]).PutOrNull("メモ２", order.memos[1]);
  row.PutOrNull("メモ３", order.memos[2]).Put("定尺１３ｍ", order.with_13m ? 1 : 0);
  return row.Statement();
}

void DeleteReplaced(Database& site, const SavedTally& replaced) {
  const std::string condition = KeyCondition(replaced.key);
  site.Execute(fmt::format("DELETE * FROM 重量集計 WHERE {}", condition));
  site.Execute(fmt::format("DELETE * FROM 重量集計名称 WHERE {}", condition));
}

/// What an overwritten tally of floors or parts left behind would come back among new rows of its moment.
void RequireFreeMoment(Database& site, const SavedKey& key) {
  for (const std::string_view table : kRowTables) {
    if (site.FindTable(table) == nullptr) continue;
    if (!site.HasRows(fmt::format("SELECT * FROM {} WHERE {}", table, KeyCondition(key)))) continue;
    throw Fault(FaultKind::database, fmt::format("{}: rows of {} {} are there", table, key.date, key.time));
  }
}

}  // namespace

bool WasCorrected(const TallyResult& result) {
  const bool of_grid = result.kind != TallyKind::floor && result.kind != TallyKind::part;
  return of_grid && (result.origin == ResultOrigin::corrected || result.saved_as_corrected);
}

bool SaveTally(Database& site, const TallyResult& result, const SaveOrder& order,
               std::span<const SavedTally> replaced) {
  const std::vector<std::string> rows = RowStatements(result, {order.key, order.supply, order.with_13m});
  if (rows.empty()) return false;
  Transaction transaction(site);
  for (const SavedTally& old : replaced) DeleteReplaced(site, old);
  RequireFreeMoment(site, order.key);
  for (const std::string& statement : rows) site.Execute(statement);
  site.Execute(NameStatement(result, order));
  transaction.Commit();
  return true;
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "archive/store/manage_tallies.h"

#include <fmt/format.h>

#include "archive/store/saved_rows.h"
#include "data/quoted_text.h"
#include "platform/fault.h"

namespace rbt {

namespace {

void RequireThere(std::int64_t written, const SavedTally& saved) {
  if (written == 0) throw Fault(FaultKind::database, fmt::format("{}: データがありません", saved.name));
}

}  // namespace

void DeleteTally(Database& site, const SavedTally& saved) {
  const std::string condition = KeyCondition(saved.key);
  Transaction transaction(site);
  // The name goes last.
  for (const std::string_view table : kRowTables) {
    // A site from before a table has no rows of it.
    if (site.FindTable(table) != nullptr)
      site.Execute(fmt::format("DELETE * FROM {} WHERE {}", table, condition));
  }
  RequireThere(site.Execute(fmt::format("DELETE * FROM 重量集計名称 WHERE {}", condition)), saved);
  transaction.Commit();
}

void RenameTally(Database& site, const SavedTally& saved, std::string_view name) {
  Transaction transaction(site);
  RequireThere(site.Execute(fmt::format("UPDATE 重量集計名称 SET 重量集計名称={} WHERE {}",
                                        QuotedText(name, '\''), KeyCondition(saved.key))),
               saved);
  transaction.Commit();
}

}  // namespace rbt

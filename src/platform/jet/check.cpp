// SPDX-License-Identifier: MIT
#include "platform/jet/check.h"

#include <algorithm>
#include <map>
#include <set>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/jet/data_page.h"
#include "platform/jet/index.h"
#include "platform/jet/table.h"
#include "platform/jet/usage_map.h"

namespace rbt::jet {

namespace {

class Checker {
 public:
  explicit Checker(JetFile& file) : file_(file) {}

  CheckReport Run() {
    if (!file_.ClosedCleanly()) Warn("the file was not closed cleanly");
    Own(0, "the header");
    Guard("the catalog", [&] {
      for (const CatalogEntry& entry : ReadCatalog(file_)) {
        if (entry.kind == CatalogEntry::Kind::table) CheckTable(entry);
      }
    });
    CheckFreePages();
    return std::move(report_);
  }

 private:
  void Damage(std::string text) { report_.damages.push_back(std::move(text)); }
  void Warn(std::string text) { report_.warnings.push_back(std::move(text)); }

  /// Faults are what the check is there to find: each becomes a line and the next object is looked at.
  template <typename Step>
  void Guard(const std::string& what, Step step) {
    try {
      step();
    } catch (const Fault& fault) {
      Damage(fmt::format("{}: {}", what, fault.what()));
    }
  }

  void Own(std::uint32_t page, const std::string& owner) {
    const auto [at, fresh] = owners_.emplace(page, owner);
    if (!fresh && at->second != owner)
      Damage(fmt::format("page {} belongs to {} and to {}", page, at->second, owner));
  }

  void CheckTable(const CatalogEntry& entry) {
    const std::string what = fmt::format("table {}", entry.name);
    Guard(what, [&] {
      TableDefinition table = ReadTableDefinition(file_, entry.id & 0xFFFFFF);
      table.name = entry.name;
      for (const std::uint32_t page : table.definition_pages) Own(page, what);
      Guard(what + ", usage map", [&] { CheckUsageMap(table, what); });
      std::map<RowPointer, std::vector<bool>> rows;
      Guard(what + ", rows", [&] { CheckRows(table, what, rows); });
      for (const Index& index : table.indexes) {
        const std::string name = fmt::format("{}, index {}", what, index.name);
        Guard(name, [&] { CheckIndex(table, index, name, rows); });
      }
      report_.lines.push_back(fmt::format("{}: {} rows, {} columns, {} indexes", what, rows.size(),
                                          table.columns.size(), table.indexes.size()));
    });
  }

  void CheckUsageMap(const TableDefinition& table, const std::string& what) {
    for (const std::uint32_t page : BitmapPagesOfUsageMap(file_, table.owned_pages)) Own(page, what);
    for (const std::uint32_t page : BitmapPagesOfUsageMap(file_, table.free_pages)) Own(page, what);
    const std::vector<std::uint32_t> owned = PagesOfUsageMap(file_, table.owned_pages);
    for (const std::uint32_t page : owned) Own(page, what);
    for (const std::uint32_t page : PagesOfUsageMap(file_, table.free_pages)) {
      if (!std::binary_search(owned.begin(), owned.end(), page)) {
        Damage(fmt::format("{}: page {} has free space but is not owned", what, page));
      }
    }
    for (std::uint32_t page = 1; page < file_.PageCount(); ++page) {
      const PageView view = file_.Page(page);
      const bool data = view.U8(0) == static_cast<std::uint8_t>(PageType::data) && view.U32(4) == table.page;
      const bool listed = std::binary_search(owned.begin(), owned.end(), page);
      if (data && !listed)
        Warn(fmt::format("{}: page {} points to it but its usage map lacks the page", what, page));
    }
  }

  void CheckRows(const TableDefinition& table, const std::string& what,
                 std::map<RowPointer, std::vector<bool>>& rows) {
    const ScanReport scan = ScanTable(file_, table, [&](RowPointer place, std::vector<Value>& fields) {
      std::vector<bool> nulls(fields.size());
      for (std::size_t i = 0; i < fields.size(); ++i) nulls[i] = IsNull(fields[i]);
      rows.emplace(place, std::move(nulls));
    });
    if (!scan.warning.empty() && file_.ClosedCleanly()) Damage(scan.warning);
    if (scan.rows != table.row_count) {
      Damage(
          fmt::format("{}: its definition counts {} rows, {} are there", what, table.row_count, scan.rows));
    }
  }

  /// Rows that the index leaves out because a key column is null.
  static bool LeftOut(const TableDefinition& table, const PhysicalIndex& physical,
                      const std::vector<bool>& nulls) {
    if (!physical.ignores_null) return false;
    return std::any_of(physical.columns.begin(), physical.columns.end(), [&](const IndexColumn& key) {
      const auto at = static_cast<std::size_t>(table.FindNumber(key.number) - table.columns.data());
      return nulls[at];
    });
  }

  void CheckIndex(const TableDefinition& table, const Index& index, const std::string& what,
                  const std::map<RowPointer, std::vector<bool>>& rows) {
    const PhysicalIndex& physical = table.physical_indexes[index.physical];
    if (physical.columns.empty()) return;
    std::set<RowPointer> seen;
    IndexEntry last;
    const IndexWalk walk = WalkIndex(file_, physical, [&](const IndexEntry& entry) {
      if (entry.key < last.key || (entry.key == last.key && entry.row < last.row)) {
        Damage(
            fmt::format("{}: the entry of row {}:{} is out of order", what, entry.row.page, entry.row.slot));
      }
      if (rows.count(entry.row) == 0) {
        Damage(fmt::format("{}: an entry points to row {}:{}, which is not there", what, entry.row.page,
                           entry.row.slot));
      }
      if (!seen.insert(entry.row).second) {
        Damage(fmt::format("{}: row {}:{} has two entries", what, entry.row.page, entry.row.slot));
      }
      last = entry;
    });
    for (const std::uint32_t page : walk.pages) Own(page, fmt::format("table {}", table.name));
    for (const auto& [place, nulls] : rows) {
      if (seen.count(place) == 0 && !LeftOut(table, physical, nulls)) {
        Damage(fmt::format("{}: row {}:{} has no entry", what, place.page, place.slot));
      }
    }
  }

  /// The map of free pages is row 0 of page 1; what it calls free nobody may own.
  void CheckFreePages() {
    Own(1, "the map of free pages");
    Guard("the map of free pages", [&] {
      for (const std::uint32_t page : PagesOfUsageMap(file_, {1, 0})) {
        const auto owner = owners_.find(page);
        if (owner != owners_.end())
          Damage(fmt::format("page {} is called free but belongs to {}", page, owner->second));
      }
    });
  }

  JetFile& file_;
  CheckReport report_;
  std::map<std::uint32_t, std::string> owners_;
};

}  // namespace

CheckReport CheckFile(JetFile& file) { return Checker(file).Run(); }

}  // namespace rbt::jet

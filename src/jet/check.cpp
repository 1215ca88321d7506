// SPDX-License-Identifier: MIT
#include "jet/check.h"

#include <algorithm>

#include <fmt/format.h>

#include "jet/check_index.h"
#include "jet/data_page.h"
#include "jet/page_owners.h"
#include "jet/table.h"
#include "jet/usage_map.h"
#include "platform/pass_over_faults.h"

namespace rbt::jet {

namespace {

constexpr std::uint32_t kLongValueOwner = 0x4C41564C;  // "LVAL"
constexpr std::size_t kMostDamages = 200;

class Checker {
 public:
  explicit Checker(JetFile& file)
      : file_(file), owners_(file.PageCount(), [this](std::string text) { Damage(std::move(text)); }) {}

  CheckReport Run() {
    owners_.Own(0, "the header");
    std::vector<CatalogEntry> entries;
    Guard("the catalog", [&] { entries = ReadCatalog(file_); });
    RunOn(entries);
    CheckGivenUpPages();
    return Report();
  }

  CheckReport RunOnTables(const std::vector<CatalogEntry>& tables) {
    RunOn(tables);
    return Report();
  }

 private:
  static constexpr const char* kUsageMaps = "the usage maps";

  void RunOn(const std::vector<CatalogEntry>& entries) {
    for (const std::string& note : file_.CommitNotes()) Warn(note);
    Guard("the map of free pages", [&] { free_ = OwnPagesOf(kFreePages, kUsageMaps); });
    for (const CatalogEntry& entry : entries) {
      if (entry.kind == CatalogEntry::Kind::table) CheckTable(entry);
    }
    CheckFreePages();
  }

  CheckReport Report() {
    if (damages_ > kMostDamages) {
      report_.damages.push_back(fmt::format("and {} more", damages_ - kMostDamages));
    }
    return std::move(report_);
  }

  void Damage(std::string text) {
    if (++damages_ <= kMostDamages) report_.damages.push_back(std::move(text));
  }
  void Warn(std::string text) { report_.warnings.push_back(std::move(text)); }

  /// Faults are what the check is there to find: each becomes a line and the next object is looked at.
  template <typename Step>
  void Guard(const std::string& what, Step step) {
    if (const auto fault = PassOverFaultsOfContent(step)) Damage(fmt::format("{}: {}", what, fault->what()));
  }

  void CheckTable(const CatalogEntry& entry) {
    const std::string what = fmt::format("table {}", entry.name);
    Guard(what, [&] {
      TableDefinition table = ReadTableDefinition(file_, entry.id & 0xFFFFFF);
      table.name = entry.name;
      for (const std::uint32_t page : table.definition_pages) owners_.Own(page, what);
      std::vector<RowNulls> rows;
      bool map_is_right = false;
      Guard(what + ", rows", [&] { map_is_right = CheckRows(table, what, rows); });
      Guard(what + ", usage map", [&] { CheckUsageMap(table, what, map_is_right); });
      for (const LongValueMap& map : table.long_value_maps) {
        const std::string name = fmt::format("{}, long values of column {}", what, map.column);
        Guard(name, [&] { CheckLongValueMap(map, name); });
      }
      CheckIndexes(table, what, rows);
      report_.lines.push_back(fmt::format("{}: {} rows, {} columns, {} indexes", what, rows.size(),
                                          table.columns.size(), table.indexes.size()));
    });
  }

  /// The pages of a map, which with its bitmap pages belong to `owner`.
  std::vector<std::uint32_t> OwnPagesOf(RowPointer map, const std::string& owner) {
    if (map == kNoUsageMap) return {};
    owners_.Own(map.page, kUsageMaps);
    for (const std::uint32_t page : BitmapPagesOfUsageMap(file_, map)) owners_.Own(page, owner);
    return PagesOfUsageMap(file_, map);
  }

  void CheckFreeSpace(RowPointer map, const std::vector<std::uint32_t>& owned, const std::string& what) {
    for (const std::uint32_t page : OwnPagesOf(map, what)) {
      if (!Lists(owned, page)) Damage(fmt::format("{}: page {} has free space but is not owned", what, page));
    }
  }

  /// Where the map is right, a page that points to the table and is not in it was given up.
  void CheckUsageMap(const TableDefinition& table, const std::string& what, bool map_is_right) {
    const std::vector<std::uint32_t> owned = OwnPagesOf(table.owned_pages, what);
    const std::vector<std::uint32_t>& pointing = file_.DataPagesPointingTo(table.page);
    for (const std::uint32_t page : owned) {
      owners_.Own(page, what);
      if (!Lists(pointing, page) && !Contains(table.definition_pages, page)) {
        Damage(fmt::format("{}: page {} is in its usage map but does not point to it", what, page));
      }
    }
    for (const std::uint32_t page : pointing) {
      if (!map_is_right && !Lists(owned, page) && !Lists(free_, page)) {
        Damage(fmt::format("{}: page {} points to it but is not in its usage map", what, page));
      }
    }
    CheckFreeSpace(table.free_pages, owned, what);
  }

  static bool Contains(const std::vector<std::uint32_t>& pages, std::uint32_t page) {
    return std::find(pages.begin(), pages.end(), page) != pages.end();
  }

  void CheckLongValueMap(const LongValueMap& map, const std::string& what) {
    const std::vector<std::uint32_t> owned = OwnPagesOf(map.owned_pages, what);
    const std::vector<std::uint32_t>& long_values = file_.DataPagesPointingTo(kLongValueOwner);
    for (const std::uint32_t page : owned) {
      owners_.Own(page, what);
      if (!Lists(long_values, page)) Damage(fmt::format("{}: page {} holds no long values", what, page));
    }
    CheckFreeSpace(map.free_pages, owned, what);
  }

  /// True when the usage map led to the rows.
  bool CheckRows(const TableDefinition& table, const std::string& what, std::vector<RowNulls>& rows) {
    const ScanReport scan = ScanTable(file_, table, [&](RowPointer place, std::vector<Value>& fields) {
      RowNulls& row = rows.emplace_back(RowNulls{place, std::vector<bool>(fields.size())});
      for (std::size_t i = 0; i < fields.size(); ++i) row.nulls[i] = IsNull(fields[i]);
    });
    if (!scan.warning.empty()) Damage(scan.warning);
    if (scan.rows != table.row_count) {
      Warn(fmt::format("{}: page {}: its definition counts {} rows, {} are there", what, table.page,
                       table.row_count, scan.rows));
    }
    return scan.warning.empty();
  }

  /// Several indexes may share one B-tree, which is walked once.
  void CheckIndexes(const TableDefinition& table, const std::string& what,
                    const std::vector<RowNulls>& rows) {
    for (std::size_t i = 0; i < table.physical_indexes.size(); ++i) {
      const PhysicalIndex& physical = table.physical_indexes[i];
      const std::string name = fmt::format("{}, index {}", what, IndexName(table, i));
      Guard(name, [&] {
        const IndexWalk walk = CheckIndex(file_, table, physical, rows, [&](const std::string& text) {
          Damage(fmt::format("{}: {}", name, text));
        });
        for (const std::uint32_t page : walk.pages) owners_.Own(page, name);
        const std::vector<std::uint32_t> mapped = OwnPagesOf(physical.usage, name);
        for (const std::uint32_t page : walk.pages) {
          if (!Lists(mapped, page)) Damage(fmt::format("{}: page {} is not in its usage map", name, page));
        }
      });
    }
  }

  static std::string IndexName(const TableDefinition& table, std::size_t physical) {
    const auto found = std::find_if(table.indexes.begin(), table.indexes.end(),
                                    [&](const Index& index) { return index.physical == physical; });
    return found == table.indexes.end() ? fmt::format("number {}", physical) : found->name;
  }

  /// What is called free nobody may own.
  void CheckFreePages() {
    for (const std::uint32_t page : free_) {
      if (const std::string* owner = owners_.Find(page)) {
        Damage(fmt::format("page {} is called free but belongs to {}", page, *owner));
      }
    }
  }

  /// Engines leave pages behind that nobody owns and nobody calls free.
  void CheckGivenUpPages() {
    std::vector<std::uint32_t> given_up;
    for (std::uint32_t page = 0; page < file_.PageCount(); ++page) {
      if (owners_.Find(page) == nullptr && !Lists(free_, page)) given_up.push_back(page);
    }
    if (given_up.empty()) return;
    Warn(fmt::format("pages that were given up, neither owned nor free: {}, page {} first", given_up.size(),
                     given_up.front()));
  }

  JetFile& file_;
  CheckReport report_;
  std::size_t damages_ = 0;
  PageOwners owners_;
  std::vector<std::uint32_t> free_;
};

}  // namespace

CheckReport CheckFile(JetFile& file) { return Checker(file).Run(); }

CheckReport CheckTables(JetFile& file, const std::vector<CatalogEntry>& tables) {
  return Checker(file).RunOnTables(tables);
}

}  // namespace rbt::jet

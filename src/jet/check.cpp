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

bool Lists(const std::vector<std::uint32_t>& ascending, std::uint32_t page) {
  return std::binary_search(ascending.begin(), ascending.end(), page);
}

class Checker {
 public:
  explicit Checker(JetFile& file)
      : file_(file), owners_(file.PageCount(), [this](std::string text) { Damage(std::move(text)); }) {}

  CheckReport Run() {
    if (!file_.ClosedCleanly()) Warn("the file was not closed cleanly");
    owners_.Own(0, "the header");
    Guard("the map of free pages", [&] { free_ = OwnPagesOf(kFreePages, kUsageMaps); });
    Guard("the catalog", [&] {
      for (const CatalogEntry& entry : ReadCatalog(file_)) {
        if (entry.kind == CatalogEntry::Kind::table) CheckTable(entry);
      }
    });
    CheckFreePages();
    if (damages_ > kMostDamages) {
      report_.damages.push_back(fmt::format("and {} more", damages_ - kMostDamages));
    }
    return std::move(report_);
  }

 private:
  static constexpr const char* kUsageMaps = "the usage maps";

  void Damage(std::string text) {
    if (++damages_ <= kMostDamages) report_.damages.push_back(std::move(text));
  }
  void Warn(std::string text) { report_.warnings.push_back(std::move(text)); }

  /// Faults are what the check is there to find: each becomes a line and the next object is looked at.
  template <typename Step>
  void Guard(const std::string& what, Step step) {
    if (const auto fault = PassOverFaults(step)) Damage(fmt::format("{}: {}", what, fault->what()));
  }

  void CheckTable(const CatalogEntry& entry) {
    const std::string what = fmt::format("table {}", entry.name);
    Guard(what, [&] {
      TableDefinition table = ReadTableDefinition(file_, entry.id & 0xFFFFFF);
      table.name = entry.name;
      for (const std::uint32_t page : table.definition_pages) owners_.Own(page, what);
      Guard(what + ", usage map", [&] { CheckUsageMap(table, what); });
      for (const LongValueMap& map : table.long_value_maps) {
        const std::string name = fmt::format("{}, long values of column {}", what, map.column);
        Guard(name, [&] { CheckLongValueMap(map, name); });
      }
      std::vector<RowNulls> rows;
      Guard(what + ", rows", [&] { rows = CheckRows(table, what); });
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

  void CheckUsageMap(const TableDefinition& table, const std::string& what) {
    const std::vector<std::uint32_t> owned = OwnPagesOf(table.owned_pages, what);
    const std::vector<std::uint32_t>& pointing = file_.DataPagesPointingTo(table.page);
    for (const std::uint32_t page : owned) {
      owners_.Own(page, what);
      if (!Lists(pointing, page) && !Contains(table.definition_pages, page)) {
        Damage(fmt::format("{}: page {} is in its usage map but does not point to it", what, page));
      }
    }
    for (const std::uint32_t page : pointing) {
      if (!Lists(owned, page) && !Lists(free_, page)) {
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

  std::vector<RowNulls> CheckRows(const TableDefinition& table, const std::string& what) {
    std::vector<RowNulls> rows;
    const ScanReport scan = ScanTable(file_, table, [&](RowPointer place, std::vector<Value>& fields) {
      RowNulls& row = rows.emplace_back(RowNulls{place, std::vector<bool>(fields.size())});
      for (std::size_t i = 0; i < fields.size(); ++i) row.nulls[i] = IsNull(fields[i]);
    });
    if (!scan.warning.empty() && file_.ClosedCleanly()) Damage(scan.warning);
    if (scan.rows != table.row_count) {
      Damage(
          fmt::format("{}: its definition counts {} rows, {} are there", what, table.row_count, scan.rows));
    }
    return rows;
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

  /// What is called free nobody may own, and what is neither is lost.
  void CheckFreePages() {
    std::vector<std::uint32_t> lost;
    for (std::uint32_t page = 0; page < file_.PageCount(); ++page) {
      const std::string* owner = owners_.Find(page);
      if (owner == nullptr && !Lists(free_, page)) lost.push_back(page);
      if (owner != nullptr && Lists(free_, page)) {
        Damage(fmt::format("page {} is called free but belongs to {}", page, *owner));
      }
    }
    if (lost.empty()) return;
    Damage(
        fmt::format("pages that are neither owned nor free: {}, page {} first", lost.size(), lost.front()));
  }

  JetFile& file_;
  CheckReport report_;
  std::size_t damages_ = 0;
  PageOwners owners_;
  std::vector<std::uint32_t> free_;
};

}  // namespace

CheckReport CheckFile(JetFile& file) { return Checker(file).Run(); }

}  // namespace rbt::jet

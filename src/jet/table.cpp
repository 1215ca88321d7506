// SPDX-License-Identifier: MIT
#include "jet/table.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <fmt/format.h>

#include "jet/data_page.h"
#include "jet/usage_map.h"
#include "platform/fault.h"
#include "platform/pass_over_faults.h"
#include "platform/text/characters.h"

namespace rbt::jet {

namespace {

constexpr std::uint32_t kSystemFlags = 0x80000002;

CatalogEntry::Kind KindOf(std::int64_t type) {
  switch (type) {
    case 1:
      return CatalogEntry::Kind::table;
    case 4:
    case 6:
      return CatalogEntry::Kind::link;
    case 5:
      return CatalogEntry::Kind::query;
    case 8:
      return CatalogEntry::Kind::relationship;
    case -32768:
      return CatalogEntry::Kind::form;
    case -32764:
      return CatalogEntry::Kind::report;
    case -32766:
      return CatalogEntry::Kind::macro;
    case -32761:
      return CatalogEntry::Kind::module;
    default:
      return CatalogEntry::Kind::other;
  }
}

/// The pages of a usage map, none when it cannot be read.
std::vector<std::uint32_t> PagesIfReadable(JetFile& file, RowPointer map) {
  std::vector<std::uint32_t> pages;
  PassOverFaultsOfContent([&] { pages = PagesOfUsageMap(file, map); });
  return pages;
}

std::vector<RowPointer> LiveRowsOn(JetFile& file, const std::vector<std::uint32_t>& pages) {
  std::vector<RowPointer> places;
  for (const std::uint32_t number : pages) {
    const std::vector<Slot> slots = SlotsOf(file, file.Page(number, PageType::data));
    for (std::size_t i = 0; i < slots.size(); ++i) {
      if (!slots[i].deleted && !slots[i].body) places.push_back({number, static_cast<std::uint8_t>(i)});
    }
  }
  return places;
}

/// The live rows on the pages of the table's usage map. A page of somebody else in it is damage.
std::vector<RowPointer> RowsOfUsageMap(JetFile& file, const TableDefinition& table) {
  std::vector<std::uint32_t> pages = PagesOfUsageMap(file, table.owned_pages);
  std::erase_if(pages, [&](std::uint32_t page) {
    return std::find(table.definition_pages.begin(), table.definition_pages.end(), page) !=
           table.definition_pages.end();
  });
  for (const std::uint32_t page : pages) {
    if (OwnerOf(file.Page(page, PageType::data)) != table.page) {
      file.Damaged(page, fmt::format("is in the usage map of {} but does not point to it", table.name));
    }
  }
  return LiveRowsOn(file, pages);
}

/// The live rows on all pages that point to the table. A freed page keeps its pointer and its rows.
std::vector<RowPointer> RowsOfPointingPages(JetFile& file, const TableDefinition& table) {
  const std::vector<std::uint32_t> owned = PagesIfReadable(file, table.owned_pages);
  const std::vector<std::uint32_t> free = PagesIfReadable(file, kFreePages);
  std::vector<std::uint32_t> pages;
  for (const std::uint32_t page : file.DataPagesPointingTo(table.page)) {
    if (Lists(owned, page) || !Lists(free, page)) pages.push_back(page);
  }
  return LiveRowsOn(file, pages);
}

/// The count of a system table lags behind its rows now and then, and never runs ahead of them.
bool IsRightCount(const TableDefinition& table, std::size_t rows) {
  return rows == table.row_count || (table.system && rows > table.row_count);
}

std::int64_t IntegerAt(const std::vector<Value>& fields, const TableDefinition& table,
                       std::string_view name) {
  const Column* column = table.Find(name);
  if (column == nullptr) return 0;
  const auto at = static_cast<std::size_t>(column - table.columns.data());
  const auto* value = std::get_if<std::int64_t>(&fields[at]);
  return value == nullptr ? 0 : *value;
}

}  // namespace

std::vector<RowPointer> PlacesOfRows(JetFile& file, const TableDefinition& table, std::string& warning) {
  std::vector<RowPointer> places;
  std::string by_map;
  if (const auto fault = PassOverFaultsOfContent([&] { places = RowsOfUsageMap(file, table); })) {
    by_map = fmt::format("its usage map is of no use ({})", fault->what());
  } else if (IsRightCount(table, places.size())) {
    return places;
  } else {
    by_map = fmt::format("its usage map leads to {}", places.size());
  }
  places = RowsOfPointingPages(file, table);
  const std::string count = fmt::format("the definition of {} counts {} rows", table.name, table.row_count);
  if (places.size() != table.row_count) {
    file.Damaged(table.page, fmt::format("{}, {}, and {} stand on the pages that point to it: which are "
                                         "right cannot be told",
                                         count, by_map, places.size()));
  }
  warning = fmt::format("{}: page {}: {}, {}; all data pages were looked through", file.Name(), table.page,
                        count, by_map);
  return places;
}

std::vector<Value> ReadRow(JetFile& file, const TableDefinition& table, RowPointer place) {
  const std::vector<unsigned char> bytes = ReadRowBytes(file, place);
  return DecodeRow(file, table, PageView(bytes, &file.Name(), place.page));
}

ScanReport ScanTable(JetFile& file, const TableDefinition& table, const RowHandler& handle) {
  ScanReport report;
  for (const RowPointer place : PlacesOfRows(file, table, report.warning)) {
    std::vector<Value> fields = ReadRow(file, table, place);
    ++report.rows;
    handle(place, fields);
  }
  return report;
}

std::vector<CatalogEntry> ReadCatalog(JetFile& file) {
  TableDefinition catalog = ReadTableDefinition(file, kCatalogPage);
  catalog.name = "MSysObjects";
  const Column* name = catalog.Find("Name");
  const Column* properties = catalog.Find("LvProp");
  if (name == nullptr) file.Damaged(kCatalogPage, "is no catalog: it has no column Name");
  std::vector<CatalogEntry> entries;
  ScanTable(file, catalog, [&](RowPointer, std::vector<Value>& fields) {
    CatalogEntry entry;
    entry.id = static_cast<std::uint32_t>(IntegerAt(fields, catalog, "Id"));
    entry.parent = static_cast<std::uint32_t>(IntegerAt(fields, catalog, "ParentId"));
    entry.name = TextOf(fields[static_cast<std::size_t>(name - catalog.columns.data())]);
    entry.kind = KindOf(IntegerAt(fields, catalog, "Type"));
    entry.system = (static_cast<std::uint32_t>(IntegerAt(fields, catalog, "Flags")) & kSystemFlags) != 0;
    if (properties != nullptr) {
      Value& value = fields[static_cast<std::size_t>(properties - catalog.columns.data())];
      if (auto* bytes = std::get_if<Bytes>(&value)) entry.properties = std::move(*bytes);
    }
    entries.push_back(std::move(entry));
  });
  if (entries.empty()) file.Damaged(kCatalogPage, "the catalog lists nothing");
  return entries;
}

TableDefinition FindTable(JetFile& file, std::string_view name) {
  std::optional<CatalogEntry> found;
  for (CatalogEntry& entry : ReadCatalog(file)) {
    if (entry.kind != CatalogEntry::Kind::table || FoldIdentifier(entry.name) != FoldIdentifier(name))
      continue;
    // Of several the one that is spelled so.
    if (!found || entry.name == name) found = std::move(entry);
  }
  if (!found) throw Fault(FaultKind::file, fmt::format("{}: no table {}", file.Name(), name));
  TableDefinition table = ReadTableDefinition(file, found->id & 0xFFFFFF);
  table.name = found->name;
  return table;
}

}  // namespace rbt::jet

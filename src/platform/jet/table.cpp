// SPDX-License-Identifier: MIT
#include "platform/jet/table.h"

#include <algorithm>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/jet/data_page.h"
#include "platform/jet/usage_map.h"

namespace rbt::jet {

namespace {

constexpr std::uint32_t kCatalogPage = 2;
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

bool BelongsTo(const PageView& page, const TableDefinition& table) {
  return page.U8(0) == static_cast<std::uint8_t>(PageType::data) && OwnerOf(page) == table.page;
}

/// Every data page whose pointer names the table, for files whose usage maps cannot be relied on.
std::vector<std::uint32_t> PagesByPointer(JetFile& file, const TableDefinition& table) {
  std::vector<std::uint32_t> pages;
  for (std::uint32_t page = 1; page < file.PageCount(); ++page) {
    if (BelongsTo(file.Page(page), table)) pages.push_back(page);
  }
  return pages;
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

std::vector<std::uint32_t> DataPagesOf(JetFile& file, const TableDefinition& table, std::string& warning) {
  if (!file.ClosedCleanly()) {
    warning = fmt::format("{} was not closed cleanly; all data pages were looked through", file.Name());
    return PagesByPointer(file, table);
  }
  try {
    std::vector<std::uint32_t> pages;
    for (const std::uint32_t number : PagesOfUsageMap(file, table.owned_pages)) {
      const PageView page = file.Page(number);
      if (page.U8(0) == static_cast<std::uint8_t>(PageType::table_definition)) continue;
      if (!BelongsTo(page, table)) page.Damaged("the usage map of another table names it");
      pages.push_back(number);
    }
    return pages;
  } catch (const Fault& fault) {
    warning = fmt::format("the usage map of {} is of no use ({}); all data pages were looked through",
                          table.name, fault.what());
    return PagesByPointer(file, table);
  }
}

std::vector<RowPointer> PlacesOfRows(JetFile& file, const TableDefinition& table, std::string& warning) {
  std::vector<RowPointer> places;
  for (const std::uint32_t number : DataPagesOf(file, table, warning)) {
    const std::vector<Slot> slots = SlotsOf(file, file.Page(number, PageType::data));
    for (std::size_t i = 0; i < slots.size(); ++i) {
      if (!slots[i].deleted && !slots[i].body) places.push_back({number, static_cast<std::uint8_t>(i)});
    }
  }
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
  return entries;
}

TableDefinition FindTable(JetFile& file, std::string_view name) {
  for (const CatalogEntry& entry : ReadCatalog(file)) {
    if (entry.kind != CatalogEntry::Kind::table || entry.name != name) continue;
    TableDefinition table = ReadTableDefinition(file, entry.id & 0xFFFFFF);
    table.name = entry.name;
    return table;
  }
  throw Fault(FaultKind::file, fmt::format("{}: no table {}", file.Name(), name));
}

}  // namespace rbt::jet

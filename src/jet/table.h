// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "jet/row.h"

namespace rbt::jet {

/// An object that the catalog lists.
struct CatalogEntry {
  enum class Kind { table, query, form, report, macro, module, link, relationship, other };
  std::uint32_t id = 0;  ///< of a table the page of its definition
  std::uint32_t parent = 0;
  std::string name;
  Kind kind = Kind::other;
  bool system = false;
  Bytes properties;  ///< as they stand, carried and not read
};

/// All objects of the file, in catalog order, system objects included. Fewer than a cleanly closed file
/// counts are damage.
std::vector<CatalogEntry> ReadCatalog(JetFile& file);

/// Definition of a table by its name, letter case and the width of ASCII letters and digits ignored; a name
/// that the catalog lacks throws `file`.
TableDefinition FindTable(JetFile& file, std::string_view name);

/// What a walk over a table met.
struct ScanReport {
  std::size_t rows = 0;
  /// Why the walk went over all data pages instead of the table's usage map; empty when it did not.
  std::string warning;
};

/// Calls back for each live row with its place and its fields (parallel to `table.columns`), in page order.
/// When the file was not closed cleanly, or the usage map does not agree with the pages, all data pages are
/// looked through by their table pointer.
using RowHandler = std::function<void(RowPointer place, std::vector<Value>& fields)>;
ScanReport ScanTable(JetFile& file, const TableDefinition& table, const RowHandler& handle);

/// The places of the live rows, in page order. `warning` as in `ScanReport`.
std::vector<RowPointer> PlacesOfRows(JetFile& file, const TableDefinition& table, std::string& warning);
/// One live row.
std::vector<Value> ReadRow(JetFile& file, const TableDefinition& table, RowPointer place);

/// The pages that hold the table's rows, by the usage map or, with `warning` filled, by
/// the pages' own pointers.
std::vector<std::uint32_t> DataPagesOf(JetFile& file, const TableDefinition& table, std::string& warning);

}  // namespace rbt::jet

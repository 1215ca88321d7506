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

/// All objects of the file, in catalog order, system objects included. Fewer than the file counts are damage.
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
/// The rows are those of `PlacesOfRows`.
using RowHandler = std::function<void(RowPointer place, std::vector<Value>& fields)>;
ScanReport ScanTable(JetFile& file, const TableDefinition& table, const RowHandler& handle);

/// The places of the live rows, in page order. A usage map whose rows are as many as the definition counts is
/// right: pages that were given up keep their table pointer and their rows, and nobody calls them free.
/// Otherwise all data pages are looked through by their table pointer, `warning` telling why, and are right
/// where their rows agree with the count. When neither agrees, `Fault` of kind `file` tells so. The count of
/// a system table may lag behind its rows.
std::vector<RowPointer> PlacesOfRows(JetFile& file, const TableDefinition& table, std::string& warning);
/// One live row.
std::vector<Value> ReadRow(JetFile& file, const TableDefinition& table, RowPointer place);

}  // namespace rbt::jet

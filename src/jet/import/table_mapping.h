// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "jet/table.h"
#include "store/schema/schema.h"

namespace rbt::jet {

/// A Jet table as the store gets it.
struct TableMapping {
  TableDefinition source;
  TableDef target;
  std::optional<std::size_t> key;      ///< physical index of the primary key
  std::vector<std::string> not_taken;  ///< indexes that are no keys, rules, defaults that are no literals
  std::vector<std::string> warnings;
};

/// Columns with their types, sizes and literal default values, the primary key and the unique indexes.
TableMapping MapTable(JetFile& file, const CatalogEntry& entry);

/// The store's literal of a column's default value as the file writes it (`0`, `"abc"`, `=True`); nothing for
/// an expression.
std::optional<std::string> LiteralOfDefault(const std::string& expression);

}  // namespace rbt::jet

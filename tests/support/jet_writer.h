// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "jet/jet_file.h"
#include "store/database.h"
#include "store/schema/schema.h"

namespace rbt::test {

/// A table for a real Jet file.
struct JetTable {
  std::string name;
  std::vector<FieldDef> fields;
  /// Parallel to the fields; a shorter row is one that is older than the fields behind. Bytes for a text
  /// stand in the file as they are.
  std::vector<std::vector<Value>> rows;
  std::vector<std::string> key = {};  ///< whole-number fields of the primary key
  Bytes properties = {};              ///< of the catalog entry, see `JetProperties`
};

/// A text property of a column.
struct JetProperty {
  std::string column;
  std::string name;
  std::string text;
};
Bytes JetProperties(jet::JetVersion version, const std::vector<JetProperty>& properties);

/// A whole Jet file of code page 932 with these tables: header, free pages, catalog, definitions, usage maps,
/// rows, primary keys. It knows what tests need: rows and definitions of one page, memo and OLE values inside
/// their row.
Bytes JetImage(jet::JetVersion version, const std::vector<JetTable>& tables);
void WriteJetFile(const std::filesystem::path& file, jet::JetVersion version,
                  const std::vector<JetTable>& tables);

/// All tables of a database of the store, keys of whole numbers included.
std::vector<JetTable> JetTablesOf(Database& database);

}  // namespace rbt::test

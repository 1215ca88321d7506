// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "jet/jet_file.h"
#include "store/database.h"
#include "support/jet_writer.h"

namespace rbt::test {

/// Puts a real Jet file with the same tables and rows in place of a file of the store.
inline void TurnIntoJet(const std::filesystem::path& file, jet::JetVersion version = jet::JetVersion::jet4) {
  std::vector<JetTable> tables;
  {
    Database database = Database::Open(file);
    tables = JetTablesOf(database);
  }
  std::filesystem::remove(file);
  WriteJetFile(file, version, tables);
}

}  // namespace rbt::test

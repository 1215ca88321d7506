// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace rbt::jet {

/// What became of one table.
struct ImportedTable {
  std::string name;
  std::size_t rows = 0;                   ///< taken
  std::size_t refused = 0;                ///< rows with a value that the store cannot hold
  std::vector<std::string> refused_rows;  ///< the first ten thousand of them, each with its cause
};

/// What was taken from a Jet file and what was not.
struct ImportReport {
  std::filesystem::path source;
  std::filesystem::path target;
  std::vector<ImportedTable> tables;
  std::vector<std::string> damages;    ///< what the check found in the tables that were taken
  std::vector<std::string> not_taken;  ///< queries, forms, links, rules of columns, ...
  std::vector<std::string> warnings;

  std::size_t Rows() const;
  std::size_t Refused() const;
};

/// The report in lines, for people.
std::string ReportText(const ImportReport& report);

}  // namespace rbt::jet

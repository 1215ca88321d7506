// SPDX-License-Identifier: MIT
#include "jet/import/import_report.h"

#include <fmt/format.h>

namespace rbt::jet {

std::size_t ImportReport::Rows() const {
  std::size_t rows = 0;
  for (const ImportedTable& table : tables) rows += table.rows;
  return rows;
}

std::size_t ImportReport::Refused() const {
  std::size_t refused = 0;
  for (const ImportedTable& table : tables) refused += table.refused;
  return refused;
}

std::string ReportText(const ImportReport& report) {
  std::string text = fmt::format("{}: {} tables, {} rows taken into {}\n", report.source.filename().string(),
                                 report.tables.size(), report.Rows(), report.target.string());
  for (const ImportedTable& table : report.tables) {
    text += fmt::format("  table {}: {} rows", table.name, table.rows);
    if (table.refused > 0) text += fmt::format(", {} REFUSED", table.refused);
    text += "\n";
    for (const std::string& row : table.refused_rows) text += fmt::format("    refused: {}\n", row);
    if (table.refused > table.refused_rows.size()) {
      text += fmt::format("    and {} more\n", table.refused - table.refused_rows.size());
    }
  }
  for (const std::string& damage : report.damages) text += fmt::format("  DAMAGE: {}\n", damage);
  for (const std::string& object : report.not_taken) text += fmt::format("  not taken: {}\n", object);
  for (const std::string& warning : report.warnings) text += fmt::format("  warning: {}\n", warning);
  return text;
}

}  // namespace rbt::jet

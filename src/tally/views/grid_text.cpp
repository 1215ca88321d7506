// SPDX-License-Identifier: MIT
#include "tally/views/grid_text.h"

#include <algorithm>

#include "platform/text/characters.h"
#include "platform/text/csv.h"

namespace rbt {
namespace {

std::vector<std::size_t> ColumnWidths(const GridRows& rows) {
  std::vector<std::size_t> widths;
  for (const auto& row : rows) {
    if (row.size() > widths.size()) widths.resize(row.size());
    for (std::size_t column = 0; column < row.size(); ++column) {
      widths[column] = std::max(widths[column], DisplayWidth(row[column]));
    }
  }
  return widths;
}

void TrimEnd(std::string& line) { line.erase(line.find_last_not_of(' ') + 1); }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// A comma between two digits of a number; a name keeps its own.
std::string WithoutThousandsSeparators(std::string_view cell) {
  std::string text;
  for (std::size_t at = 0; at < cell.size(); ++at) {
    const bool separator =
        cell[at] == ',' && at > 0 && at + 1 < cell.size() && IsDigit(cell[at - 1]) && IsDigit(cell[at + 1]);
    if (!separator) text += cell[at];
  }
  return text;
}

}  // namespace

std::string GridTable(const GridRows& rows) {
  const std::vector<std::size_t> widths = ColumnWidths(rows);
  std::string table;
  for (const auto& row : rows) {
    std::string line;
    for (std::size_t column = 0; column < row.size(); ++column) {
      const std::string padding(widths[column] - DisplayWidth(row[column]), ' ');
      if (column == 0) {
        line += row[column] + padding;
      } else {
        line += "  " + padding + row[column];
      }
    }
    TrimEnd(line);
    table += line + '\n';
  }
  return table;
}

std::string GridTable(std::span<const std::string_view> captions, const GridRows& rows) {
  GridRows with_head{{captions.begin(), captions.end()}};
  with_head.insert(with_head.end(), rows.begin(), rows.end());
  return GridTable(with_head);
}

std::string GridCsv(std::span<const std::string_view> captions, const GridRows& rows) {
  CsvRecord head;
  for (const std::string_view caption : captions) head.Add(caption);
  std::string csv = head.Text();
  for (const auto& row : rows) {
    CsvRecord record;
    for (const std::string& cell : row) record.Add(WithoutThousandsSeparators(Trim(cell)));
    csv += record.Text();
  }
  return csv;
}

}  // namespace rbt

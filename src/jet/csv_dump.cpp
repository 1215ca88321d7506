// SPDX-License-Identifier: MIT
#include "jet/csv_dump.h"

#include <chrono>
#include <cmath>

#include <fmt/format.h>

#include "platform/text/csv.h"

namespace rbt::jet {

namespace {

/// The empty text is told from null.
std::string TextCell(const std::string& text) { return text.empty() ? "\"\"" : CsvCell(text); }

/// Day 0 is 1899-12-30; the fraction of a day before it counts forward all the same.
std::string DateText(double days) {
  if (!(std::fabs(days) < 3e6)) return fmt::format("{}", days);
  double whole = std::trunc(days);
  auto seconds = static_cast<std::int64_t>(std::llround(std::fabs(days - whole) * 86400.0));
  if (seconds == 86400) {
    whole += 1;
    seconds = 0;
  }
  const std::chrono::sys_days zero = std::chrono::year(1899) / 12 / 30;
  const std::chrono::year_month_day date(zero + std::chrono::days(static_cast<int>(whole)));
  std::string text = fmt::format("{:04}-{:02}-{:02}", static_cast<int>(date.year()),
                                 static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
  if (seconds != 0) {
    text += fmt::format(" {:02}:{:02}:{:02}", seconds / 3600, seconds / 60 % 60, seconds % 60);
  }
  return text;
}

std::string Cell(const Column& column, const Value& value) {
  if (IsNull(value)) return "";
  if (const auto* bytes = std::get_if<Bytes>(&value)) {
    std::string text = "0x";
    for (const unsigned char byte : *bytes) text += fmt::format("{:02X}", byte);
    return text;
  }
  if (column.type == ColumnType::date_time) return DateText(std::get<double>(value));
  if (column.type == ColumnType::single)
    return fmt::format("{}", static_cast<float>(std::get<double>(value)));
  return TextCell(TextOf(value));
}

}  // namespace

void DumpTables(JetFile& file, const TextSink& sink) {
  sink("table,rows,columns");
  sink(kCsvRecordEnd);
  for (const CatalogEntry& entry : ReadCatalog(file)) {
    if (entry.kind != CatalogEntry::Kind::table || entry.system) continue;
    const TableDefinition table = ReadTableDefinition(file, entry.id & 0xFFFFFF);
    sink(
        fmt::format("{},{},{}{}", CsvCell(entry.name), table.row_count, table.columns.size(), kCsvRecordEnd));
  }
}

std::string DumpRows(JetFile& file, std::string_view name, const TextSink& sink) {
  const TableDefinition table = FindTable(file, name);
  std::string line;
  for (const Column& column : table.columns) line += (line.empty() ? "" : ",") + CsvCell(column.name);
  sink(line);
  sink(kCsvRecordEnd);
  return ScanTable(file, table,
                   [&](RowPointer, std::vector<Value>& fields) {
                     line.clear();
                     for (std::size_t i = 0; i < fields.size(); ++i) {
                       if (i > 0) line += ',';
                       line += Cell(table.columns[i], fields[i]);
                     }
                     line += kCsvRecordEnd;
                     sink(line);
                   })
      .warning;
}

}  // namespace rbt::jet

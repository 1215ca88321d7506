// SPDX-License-Identifier: MIT
#include "jet/csv_dump.h"

#include <cmath>

#include <fmt/format.h>

#include "platform/date_time.h"
#include "platform/text/csv.h"

namespace rbt::jet {

namespace {

/// The empty text is told from null.
std::string TextCell(const std::string& text) { return text.empty() ? "\"\"" : CsvCell(text); }

/// The date, and the time of day where there is one; a number beyond all dates as it is.
std::string DateText(double days) {
  constexpr double kBeyondAllDates = 3e6;
  if (!(std::fabs(days) < kBeyondAllDates)) return fmt::format("{}", days);
  const DateTime at = DateOfDayNumber(days);
  std::string text = fmt::format("{:04}-{:02}-{:02}", at.year, at.month, at.day);
  if (at.hour != 0 || at.minute != 0 || at.second != 0) {
    text += fmt::format(" {:02}:{:02}:{:02}", at.hour, at.minute, at.second);
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
  sink(CsvRecord().Add("table").Add("rows").Add("columns").Text());
  for (const CatalogEntry& entry : ReadCatalog(file)) {
    if (entry.kind != CatalogEntry::Kind::table || entry.system) continue;
    const TableDefinition table = ReadTableDefinition(file, entry.id & 0xFFFFFF);
    sink(CsvRecord()
             .Add(entry.name)
             .Add(std::to_string(table.row_count))
             .Add(std::to_string(table.columns.size()))
             .Text());
  }
}

std::string DumpRows(JetFile& file, std::string_view name, const TextSink& sink) {
  const TableDefinition table = FindTable(file, name);
  CsvRecord head;
  for (const Column& column : table.columns) head.Add(column.name);
  sink(head.Text());
  return ScanTable(file, table,
                   [&](RowPointer, std::vector<Value>& fields) {
                     CsvRecord record;
                     for (std::size_t i = 0; i < fields.size(); ++i) {
                       record.AddWritten(Cell(table.columns[i], fields[i]));
                     }
                     sink(record.Text());
                   })
      .warning;
}

}  // namespace rbt::jet

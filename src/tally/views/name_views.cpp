// SPDX-License-Identifier: MIT
#include "tally/views/name_views.h"

#include "platform/json/json_writer.h"
#include "platform/numbers/number_mask.h"
#include "platform/text/csv.h"

namespace rbt {

namespace {

std::string NumberCell(const RegisteredName& name) { return name.number ? std::to_string(*name.number) : ""; }

std::string_view MarkCell(const RegisteredName& name) { return name.marked ? "1" : "0"; }

}  // namespace

GridRows NameRows(std::span<const RegisteredName> names) {
  GridRows rows;
  rows.reserve(names.size());
  for (const RegisteredName& name : names) {
    rows.push_back({NumberCell(name), name.name, std::string(MarkCell(name)),
                    FormatNumber(name.stock, "#,##0"), FormatNumber(name.installed, "#,##0")});
  }
  return rows;
}

std::string NameCsv(std::span<const RegisteredName> names) {
  CsvRecord head;
  for (const std::string_view caption : kNameCaptions) head.Add(caption);
  std::string csv = head.Text();
  for (const RegisteredName& name : names) {
    CsvRecord record;
    record.Add(NumberCell(name)).Add(name.name).Add(MarkCell(name));
    record.Add(FormatNumber(name.stock, "0")).Add(FormatNumber(name.installed, "0"));
    csv += record.Text();
  }
  return csv;
}

std::string NameListJson(std::span<const RegisteredName> names) {
  JsonWriter json(JsonWriter::Layout::entry_a_line);
  json.BeginObject().Field("kind", "name-list").Name("names").BeginArray();
  for (const RegisteredName& name : names) {
    json.BeginArray();
    if (name.number) {
      json.Value(*name.number);
    } else {
      json.Null();
    }
    json.Value(name.name).Value(std::int32_t{name.marked}).Value(name.stock).Value(name.installed);
    json.EndArray();
  }
  return json.EndArray().EndObject().Text();
}

}  // namespace rbt

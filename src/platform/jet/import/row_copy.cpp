// SPDX-License-Identifier: MIT
#include "platform/jet/import/row_copy.h"

#include <algorithm>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/jet/index.h"
#include "platform/store/database_impl.h"
#include "platform/store/dialect/quoting.h"
#include "platform/store/stored_value.h"

namespace rbt::jet {

namespace {

constexpr std::size_t kMostNamedRefusals = 100;

/// Appends rows by one prepared statement. An updatable recordset would ask for the next autonumber of every
/// row, which here comes with it.
class RowWriter {
 public:
  RowWriter(Database& database, const TableDef& table)
      : connection_(database.impl().Connected()), table_(table) {
    std::string names;
    std::string places;
    for (const FieldDef& field : table.fields) {
      names += (names.empty() ? "" : ", ") + dialect::QuoteName(field.name);
      places += places.empty() ? "?" : ", ?";
    }
    const std::string sql =
        fmt::format("INSERT INTO {} ({}) VALUES ({})", dialect::QuoteName(table.name), names, places);
    insert_ = connection_.Prepare(sql, fmt::format("a row of {}", table.name));
  }

  void Append(const std::vector<Value>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      const FieldDef& field = table_.fields[i];
      insert_.Bind(static_cast<int>(i) + 1, CheckedForField(field, values[i], {table_.name, field.name}));
    }
    connection_.Run(insert_);
  }

 private:
  const Connection& connection_;
  const TableDef& table_;
  Statement insert_;
};

/// The live rows in the order of the key; what the key's index lacks comes behind.
std::vector<RowPointer> InKeyOrder(JetFile& file, const TableMapping& mapping, std::vector<RowPointer> places,
                                   std::vector<std::string>& warnings) {
  if (!mapping.key) return places;
  std::vector<RowPointer> ordered;
  ordered.reserve(places.size());
  std::vector<bool> taken(places.size());
  const auto take = [&](const IndexEntry& entry) {
    const auto found = std::lower_bound(places.begin(), places.end(), entry.row);
    if (found == places.end() || *found != entry.row) return;
    const auto at = static_cast<std::size_t>(found - places.begin());
    if (!taken[at]) ordered.push_back(entry.row);
    taken[at] = true;
  };
  try {
    WalkIndex(file, mapping.source.physical_indexes[*mapping.key], take);
  } catch (const Fault& fault) {
    warnings.push_back(fmt::format("the primary key of {} is damaged ({}); rows stand as they lie",
                                   mapping.source.name, fault.what()));
    return places;
  }
  if (ordered.size() < places.size()) {
    warnings.push_back(fmt::format("the primary key of {} lacks {} rows, which stand behind the others",
                                   mapping.source.name, places.size() - ordered.size()));
  }
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (!taken[i]) ordered.push_back(places[i]);
  }
  return ordered;
}

/// Rows that are lost without a trace would be steel that nobody orders.
void CheckRowCount(const JetFile& file, const TableDefinition& table, std::size_t rows,
                   std::vector<std::string>& warnings) {
  if (rows == table.row_count) return;
  const std::string difference =
      fmt::format("the definition of {} counts {} rows, {} are there", table.name, table.row_count, rows);
  if (rows < table.row_count && file.ClosedCleanly()) file.Damaged(table.page, difference);
  warnings.push_back(difference);
}

/// The key of a row, or its first two values, so that people find it.
std::string RowName(const TableMapping& mapping, std::size_t number, const std::vector<Value>& values) {
  std::vector<std::string> names;
  if (mapping.key) {
    for (const IndexColumn& key : mapping.source.physical_indexes[*mapping.key].columns) {
      names.push_back(mapping.source.FindNumber(key.number)->name);
    }
  } else {
    for (std::size_t i = 0; i < std::min<std::size_t>(2, mapping.source.columns.size()); ++i) {
      names.push_back(mapping.source.columns[i].name);
    }
  }
  std::string text = fmt::format("row {}", number);
  for (const std::string& name : names) {
    const auto at = static_cast<std::size_t>(mapping.source.Find(name) - mapping.source.columns.data());
    const bool bytes = std::holds_alternative<Bytes>(values[at]);
    text += fmt::format(", {} {}", name,
                        IsNull(values[at]) ? "null"
                        : bytes            ? "(bytes)"
                                           : TextOf(values[at]));
  }
  return text;
}

}  // namespace

ImportedTable CopyRows(JetFile& file, const TableMapping& mapping, Database& target,
                       std::vector<std::string>& warnings) {
  ImportedTable imported;
  imported.name = mapping.source.name;
  std::string warning;
  std::vector<RowPointer> places = PlacesOfRows(file, mapping.source, warning);
  if (!warning.empty()) warnings.push_back(warning);
  CheckRowCount(file, mapping.source, places.size(), warnings);
  RowWriter writer(target, mapping.target);
  std::size_t number = 0;
  for (const RowPointer place : InKeyOrder(file, mapping, std::move(places), warnings)) {
    const std::vector<Value> values = ReadRow(file, mapping.source, place);
    ++number;
    try {
      writer.Append(values);
      ++imported.rows;
    } catch (const Fault& fault) {
      if (++imported.refused <= kMostNamedRefusals) {
        imported.refused_rows.push_back(
            fmt::format("{}: {}", RowName(mapping, number, values), fault.what()));
      }
    }
  }
  return imported;
}

}  // namespace rbt::jet

// SPDX-License-Identifier: MIT
#include "jet/import/row_copy.h"

#include <algorithm>
#include <limits>
#include <optional>

#include <fmt/format.h>

#include "jet/index.h"
#include "platform/fault.h"
#include "platform/pass_over_faults.h"
#include "store/database_impl.h"
#include "store/dialect/quoting.h"
#include "store/stored_value.h"
#include "store/table_sql.h"

namespace rbt::jet {

namespace {

constexpr std::size_t kMostNamedRefusals = 10000;

/// The live rows in the order of the key; what the key's index lacks comes behind.
std::vector<RowPointer> InKeyOrder(JetFile& file, const TableMapping& mapping, std::vector<RowPointer> places,
                                   std::vector<std::string>& warnings) {
  if (!mapping.key) return places;
  std::vector<RowPointer> ordered;
  ordered.reserve(places.size());
  std::vector<bool> taken(places.size());
  std::vector<unsigned char> last_key;
  const auto take = [&](const IndexEntry& entry) {
    if (entry.key < last_key) file.Damaged(entry.row.page, "entries of an index are out of order");
    last_key = entry.key;
    const auto found = std::lower_bound(places.begin(), places.end(), entry.row);
    if (found == places.end() || *found != entry.row) return;
    const auto at = static_cast<std::size_t>(found - places.begin());
    if (!taken[at]) ordered.push_back(entry.row);
    taken[at] = true;
  };
  const auto walk = [&] { WalkIndex(file, mapping.source.physical_indexes[*mapping.key], take); };
  if (const auto fault = PassOverFaults(walk)) {
    warnings.push_back(fmt::format("the primary key of {} is damaged ({}); rows stand as they lie",
                                   mapping.source.name, fault->what()));
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

/// Appends rows by one prepared statement. An updatable recordset would ask for the next autonumber of every
/// row, which here comes with it.
class RowCopy::Writer {
 public:
  Writer(Database& database, const TableDef& table)
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

  /// Nothing when the row was taken, else why it is refused.
  std::optional<std::string> Append(const std::vector<Value>& values) {
    if (auto refusal = BindRow(values)) return refusal;
    try {
      connection_.Run(insert_);
    } catch (const Fault&) {
      if (!RefusesTheRow()) throw;
      return sqlite3_errmsg(connection_.Handle());
    }
    return std::nullopt;
  }

  /// Numbers of the one table of the file that counts behind its rows.
  void CountFrom(std::uint32_t last) const {
    const auto counts = std::find_if(table_.fields.begin(), table_.fields.end(),
                                     [&](const FieldDef& field) { return IsAutonumberKey(table_, field); });
    constexpr auto kLargestNumber = static_cast<std::uint32_t>(std::numeric_limits<std::int32_t>::max());
    // Numbers that are given at random tell nothing of the next one.
    if (counts == table_.fields.end() || last == 0 || last > kLargestNumber) return;
    Statement replace = connection_.Prepare(
        "INSERT INTO sqlite_sequence(name, seq) SELECT ?1, 0 WHERE NOT EXISTS "
        "(SELECT * FROM sqlite_sequence WHERE name = ?1)");
    replace.Bind(1, table_.name);
    connection_.Run(replace);
    Statement raise = connection_.Prepare("UPDATE sqlite_sequence SET seq = max(seq, ?2) WHERE name = ?1");
    raise.Bind(1, table_.name);
    raise.Bind(2, Value{std::int64_t{last}});
    connection_.Run(raise);
  }

 private:
  std::optional<std::string> BindRow(const std::vector<Value>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      const FieldDef& field = table_.fields[i];
      try {
        insert_.Bind(static_cast<int>(i) + 1, CheckedForField(field, values[i], {table_.name, field.name}));
      } catch (const Fault& fault) {
        return fault.what();
      }
    }
    return std::nullopt;
  }

  /// A key that is there already, a null in a key, a value beyond the store's limits: anything else is no
  /// matter of the row.
  bool RefusesTheRow() const {
    const int code = sqlite3_errcode(connection_.Handle()) & 0xFF;
    return code == SQLITE_CONSTRAINT || code == SQLITE_MISMATCH || code == SQLITE_TOOBIG;
  }

  const Connection& connection_;
  const TableDef& table_;
  Statement insert_;
};

RowCopy::RowCopy(JetFile& file, const TableMapping& mapping, Database& target,
                 std::vector<std::string>& warnings)
    : file_(file), mapping_(mapping), writer_(std::make_unique<Writer>(target, mapping.target)) {
  imported_.name = mapping.source.name;
  std::string warning;
  places_ = PlacesOfRows(file, mapping.source, warning);
  if (!warning.empty()) warnings.push_back(warning);
  CheckRowCount(file, mapping.source, places_.size(), warnings);
  places_ = InKeyOrder(file, mapping, std::move(places_), warnings);
}

RowCopy::~RowCopy() = default;

bool RowCopy::ReadNext() {
  if (next_ == places_.size()) return false;
  values_ = ReadRow(file_, mapping_.source, places_[next_++]);
  return true;
}

void RowCopy::Append() {
  const auto refusal = writer_->Append(values_);
  if (!refusal) {
    ++imported_.rows;
  } else if (++imported_.refused <= kMostNamedRefusals) {
    imported_.refused_rows.push_back(fmt::format("{}: {}", RowName(mapping_, next_, values_), *refusal));
  }
}

void RowCopy::Finish() { writer_->CountFrom(mapping_.source.last_autonumber); }

}  // namespace rbt::jet

// SPDX-License-Identifier: MIT
#include "store/bulk_insert.h"

#include <algorithm>
#include <limits>

#include <fmt/format.h>

#include "platform/pass_over_faults.h"
#include "store/database_impl.h"
#include "store/stored_value.h"
#include "store/table_sql.h"

namespace rbt {

namespace {

struct Refusal {
  int code;  ///< SQLite's
  std::string_view text;
};
constexpr Refusal kRefusals[] = {
    {SQLITE_CONSTRAINT_UNIQUE, "another row has the same key"},
    {SQLITE_CONSTRAINT_PRIMARYKEY, "another row has the same key"},
    {SQLITE_CONSTRAINT_ROWID, "another row has the same key"},
    {SQLITE_CONSTRAINT_NOTNULL, "null where a value is due"},
    {SQLITE_MISMATCH, "a value of another type than its column"},
    {SQLITE_TOOBIG, "too large"},
};

/// Why the store refused a row, and the columns where it tells them: "another row has the same key: 表.番号".
std::string RefusalText(sqlite3* handle) {
  const int code = sqlite3_extended_errcode(handle);
  const std::string_view message = sqlite3_errmsg(handle);
  const auto* refusal = std::find_if(std::begin(kRefusals), std::end(kRefusals),
                                     [&](const Refusal& each) { return each.code == code; });
  if (refusal == std::end(kRefusals)) return std::string(message);
  const std::size_t columns = message.find(": ");
  return std::string(refusal->text) +
         (columns == std::string_view::npos ? "" : std::string(message.substr(columns)));
}

}  // namespace

class BulkInsert::Impl {
 public:
  Impl(Database::Impl& database, const TableDef& table)
      : connection_(database.Connected()),
        table_(table),
        insert_(connection_.Prepare(InsertSql(table.name, table.FieldNames()),
                                    fmt::format("a row of {}", table.name))) {}

  std::optional<std::string> Append(std::span<const Value> values) {
    if (const auto refused = PassOverFaults([&] { BindRow(values); })) return refused->what();
    try {
      connection_.Run(insert_);
    } catch (const Fault&) {
      if (!RefusesTheRow()) throw;
      return RefusalText(connection_.Handle());
    }
    return std::nullopt;
  }

  std::int64_t LastRow() const { return sqlite3_last_insert_rowid(connection_.Handle()); }

  void NumberFrom(std::uint32_t last) const {
    const auto counts = std::find_if(table_.fields.begin(), table_.fields.end(),
                                     [&](const FieldDef& field) { return IsAutonumberKey(table_, field); });
    constexpr auto kLargestNumber = static_cast<std::uint32_t>(std::numeric_limits<std::int32_t>::max());
    if (counts == table_.fields.end() || last == 0 || last > kLargestNumber) return;
    // The one table of the file that counts behind its rows.
    Statement begin = connection_.Prepare(
        "INSERT INTO sqlite_sequence(name, seq) SELECT ?1, 0 WHERE NOT EXISTS "
        "(SELECT * FROM sqlite_sequence WHERE name = ?1)");
    begin.Bind(1, table_.name);
    connection_.Run(begin);
    Statement raise = connection_.Prepare("UPDATE sqlite_sequence SET seq = max(seq, ?2) WHERE name = ?1");
    raise.Bind(1, table_.name);
    raise.Bind(2, Value{std::int64_t{last}});
    connection_.Run(raise);
  }

 private:
  void BindRow(std::span<const Value> values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      const FieldDef& field = table_.fields[i];
      insert_.Bind(static_cast<int>(i) + 1, CheckedForField(field, values[i], {table_.name, field.name}));
    }
  }

  /// A key that is there already, a null in a key, a value beyond the store's limits: anything else is no
  /// matter of the row.
  bool RefusesTheRow() const {
    const int code = sqlite3_errcode(connection_.Handle()) & 0xFF;
    return code == SQLITE_CONSTRAINT || code == SQLITE_MISMATCH || code == SQLITE_TOOBIG;
  }

  const Connection& connection_;
  TableDef table_;
  Statement insert_;
};

BulkInsert::BulkInsert(Database& database, const TableDef& table)
    : impl_(std::make_unique<Impl>(database.impl(), table)) {}

BulkInsert::~BulkInsert() = default;

std::optional<std::string> BulkInsert::Append(std::span<const Value> values) { return impl_->Append(values); }

std::int64_t BulkInsert::LastRow() const { return impl_->LastRow(); }

void BulkInsert::NumberFrom(std::uint32_t last) { impl_->NumberFrom(last); }

}  // namespace rbt

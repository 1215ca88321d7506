// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include <sqlite3.h>

#include "platform/fault.h"
#include "store/dialect/functions.h"
#include "store/dialect/translate.h"

/// Whatever the bytes, a statement is refused by a fault or translated, and what is translated SQLite takes:
/// on an empty table no statement may fail for another reason than its size.

namespace {

class OneTable : public rbt::SchemaSource {
 public:
  OneTable() {
    table_.name = "T";
    const std::pair<const char*, const char*> fields[] = {
        {"a", "LONG"},      {"ｂ", "TEXT(5)"}, {"c", "CURRENCY"}, {"d", "DOUBLE"},
        {"e f", "BOOLEAN"}, {"1g", "SHORT"},   {"h", "DATETIME"}, {"i", "OLE_BLOB"}};
    for (const auto& [name, declared] : fields) {
      table_.fields.push_back(*rbt::FieldOfDeclaredType(declared));
      table_.fields.back().name = name;
    }
    table_.indexes.push_back({.name = "pk", .primary = true, .unique = true, .fields = {"a"}});
  }

  const rbt::TableDef* Find(std::string_view table) const override {
    return table == "T" || table == "t" ? &table_ : nullptr;
  }
  const rbt::TableDef& Table() const { return table_; }

 private:
  rbt::TableDef table_;
};

sqlite3* OpenWithTable(const rbt::TableDef& table) {
  sqlite3* connection = nullptr;
  if (sqlite3_open(":memory:", &connection) != SQLITE_OK) std::abort();
  sqlite3_db_config(connection, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  rbt::RegisterJetFunctions(connection);
  std::string sql;
  for (const rbt::FieldDef& field : table.fields) {
    sql += (sql.empty() ? "CREATE TABLE T (\"" : ", \"") + field.name + "\" " + rbt::DeclaredType(field);
  }
  if (sqlite3_exec(connection, (sql + ")").c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) std::abort();
  return connection;
}

bool IsAboutSize(std::string_view message) {
  return message.find("overflow") != std::string_view::npos ||
         message.find("too large") != std::string_view::npos ||
         message.find("too many") != std::string_view::npos;
}

void MustPrepare(sqlite3* connection, const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  const int result =
      sqlite3_prepare_v2(connection, sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
  sqlite3_finalize(statement);
  if (result == SQLITE_OK || IsAboutSize(sqlite3_errmsg(connection))) return;
  std::fprintf(stderr, "%s\n%s\n", sqlite3_errmsg(connection), sql.c_str());
  std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const OneTable schema;
  static sqlite3* const connection = OpenWithTable(schema.Table());
  const std::string statement(reinterpret_cast<const char*>(data), size);
  try {
    const rbt::Translated translated = rbt::TranslateJetSql(statement, schema);
    if (const auto* select = std::get_if<rbt::SelectStatement>(&translated)) {
      MustPrepare(connection, select->sql);
      MustPrepare(connection, select->count_sql);
    } else if (const auto* change = std::get_if<rbt::ChangeStatement>(&translated)) {
      MustPrepare(connection, change->sql);
    }
  } catch (const rbt::Fault&) {
    // Refused: that is an answer.
  }
  try {
    const std::string updates[] = {"UPDATE T SET a = 1 WHERE d IN(1,2)", statement, statement};
    MustPrepare(connection, rbt::FuseUpdates(updates, schema).sql);
  } catch (const rbt::Fault&) {
    // Not an UPDATE, or refused.
  }
  return 0;
}

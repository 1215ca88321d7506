// SPDX-License-Identifier: MIT
#include "store/connection.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <optional>
#include <system_error>
#include <variant>

#include <fmt/format.h>

#include "platform/failure_log.h"
#include "platform/files/system_error.h"
#include "platform/text/characters.h"
#include "store/dialect/functions.h"

namespace rbt {
namespace {

constexpr int kBusyMilliseconds = 1000;
/// Rows of a mid-size site stay in memory between the statements of one run.
constexpr const char* kCacheSize = "PRAGMA cache_size=-32768";

/// A word that a shell hands on as it is; plain paths are left alone.
std::string ShellWord(const std::string& word) {
  if (word.find_first_of(" \t\n'\"$&()*;<>?[]`{|}~!#\\") == std::string::npos) return word;
  return "'" + ReplaceAll(word, "'", "'\\''") + "'";
}

/// Tells by the first bytes what stands under the name, before anything is opened: a Jet file must never
/// reach a library that could write it.
void RequireDatabaseFile(const std::filesystem::path& file) {
  constexpr std::string_view kSqliteMark{"SQLite format 3\0", 16};
  constexpr std::string_view kJetMark = "Standard Jet DB";
  constexpr std::size_t kJetMarkAt = 4;

  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status)) throw FileFaultText(file, "the file does not exist");
  if (!std::filesystem::is_regular_file(status)) throw FileFaultText(file, "is not a file");

  std::array<char, 20> head{};
  std::ifstream in(file, std::ios::binary);
  if (!in) throw FileFaultText(file, std::generic_category().message(errno));
  in.read(head.data(), head.size());
  const std::string_view bytes(head.data(), static_cast<std::size_t>(in.gcount()));
  if (bytes.empty()) throw FileFaultText(file, "the file is empty, not a database");
  if (bytes.substr(std::min(kJetMarkAt, bytes.size())).starts_with(kJetMark)) {
    throw FileFaultText(
        file, fmt::format("a real Jet file (Standard Jet DB), which is neither read nor written here; "
                          "to take it over: rbtally import {0} {0}",
                          ShellWord(file.string())));
  }
  if (!bytes.starts_with(kSqliteMark)) throw FileFaultText(file, "the file is not a database");
}

/// A runtime's word at the beginning of the store's message, as `RegisterJetFunctions` puts it there.
std::optional<FaultKind> KindOfMessage(std::string_view message) {
  if (message == "integer overflow") return FaultKind::overflow;  // SQLite's own, of SUM and ABS
  for (const FaultKind kind : {FaultKind::overflow, FaultKind::division_by_zero, FaultKind::type_mismatch,
                               FaultKind::invalid_use_of_null}) {
    if (message.starts_with(FaultText(kind))) return kind;
  }
  return std::nullopt;
}

}  // namespace

Fault StoreFault(sqlite3* connection, int code, std::string_view statement) {
  const std::string_view message = sqlite3_errmsg(connection);
  const char* const file = sqlite3_db_filename(connection, "main");
  const std::string where = fmt::format("{}: {}", file == nullptr ? "" : file, statement);
  if (code == SQLITE_CONSTRAINT_NOTNULL) {
    return {FaultKind::invalid_use_of_null, fmt::format("{}: {}", message, where)};
  }
  if (const auto kind = KindOfMessage(message)) {
    std::string_view rest = message;
    if (rest.starts_with(FaultText(*kind))) rest.remove_prefix(FaultText(*kind).size());
    if (rest.starts_with(": ")) rest.remove_prefix(2);
    return {*kind, rest.empty() ? where : fmt::format("{}: {}", rest, where)};
  }
  if ((code & 0xFF) == SQLITE_IOERR && sqlite3_system_errno(connection) != 0) {
    const std::string cause = std::generic_category().message(sqlite3_system_errno(connection));
    return {FaultKind::database, fmt::format("{} ({}): {}", message, cause, where)};
  }
  return {FaultKind::database, fmt::format("{}: {}", message, where)};
}

Statement::Statement(sqlite3* connection, std::string_view sql, std::string_view text) : text_(text) {
  sqlite3_stmt* statement = nullptr;
  const int code =
      sqlite3_prepare_v2(connection, sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
  handle_.reset(statement);
  if (code != SQLITE_OK) throw StoreFault(connection, code, text_);
}

bool Statement::Step() {
  const int code = sqlite3_step(handle_.get());
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  // After the message is taken, so that the statement can be bound and run again.
  const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_reset)> reset(handle_.get(), &sqlite3_reset);
  throw StoreFault(sqlite3_db_handle(handle_.get()), code, text_);
}

void Statement::Bind(int parameter, const Value& value) {
  struct Binder {
    sqlite3_stmt* statement;
    int parameter;
    int operator()(std::monostate) const { return sqlite3_bind_null(statement, parameter); }
    int operator()(std::int64_t x) const { return sqlite3_bind_int64(statement, parameter, x); }
    int operator()(double x) const { return sqlite3_bind_double(statement, parameter, x); }
    int operator()(Currency x) const { return sqlite3_bind_double(statement, parameter, x.ToDouble()); }
    int operator()(const std::string& x) const {
      return sqlite3_bind_text64(statement, parameter, x.data(), x.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    }
    int operator()(const Bytes& x) const {
      if (x.empty()) return sqlite3_bind_zeroblob(statement, parameter, 0);
      return sqlite3_bind_blob64(statement, parameter, x.data(), x.size(), SQLITE_TRANSIENT);
    }
  };
  const int code = std::visit(Binder{handle_.get(), parameter}, value);
  if (code != SQLITE_OK) throw StoreFault(sqlite3_db_handle(handle_.get()), code, text_);
}

std::string Statement::Text(int column) const {
  const unsigned char* const text = sqlite3_column_text(handle_.get(), column);
  if (text == nullptr) return {};
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(handle_.get(), column));
  return {text, text + size};
}

Connection::Connection(const std::filesystem::path& file, OpenMode mode) : file_(file) {
  RequireDatabaseFile(file);
  const int access = mode == OpenMode::read_only ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
  sqlite3* connection = nullptr;
  const int code = sqlite3_open_v2(file.string().c_str(), &connection,
                                   access | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOMUTEX, nullptr);
  handle_.reset(connection);
  if (code != SQLITE_OK) throw FileFaultText(file, sqlite3_errstr(code));
  Configure(mode);
  RegisterJetFunctions(connection);
}

void Connection::Configure(OpenMode mode) const {
  sqlite3* const connection = handle_.get();
  sqlite3_busy_timeout(connection, kBusyMilliseconds);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  const auto run = [&](const char* sql) {
    if (sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) == SQLITE_OK) return;
    throw FileFaultText(file_, sqlite3_errmsg(connection));
  };
  run("PRAGMA cell_size_check=ON");  // damaged pages are told, not followed
  run(kCacheSize);
  run("PRAGMA synchronous=FULL");
  run("SELECT count(*) FROM sqlite_master");  // the header and every table's definition are sound
  if (mode == OpenMode::read_write && sqlite3_db_readonly(connection, "main") == 0) {
    run("PRAGMA journal_mode=DELETE");
  }
}

std::int64_t Connection::Run(std::string_view sql, std::string_view text) const {
  Statement statement = Prepare(sql, text);
  return Run(statement);
}

std::int64_t Connection::Run(Statement& statement) const {
  const std::int64_t before = sqlite3_total_changes64(Handle());
  while (statement.Step()) continue;
  statement.Reset();
  // The counter of the last change keeps its figure over statements that change nothing.
  return sqlite3_total_changes64(Handle()) == before ? 0 : sqlite3_changes64(Handle());
}

std::int64_t Connection::IntegerOf(std::string_view sql) const {
  Statement statement = Prepare(sql);
  return statement.Step() ? statement.Integer(0) : 0;
}

void CreateDatabaseFile(const std::filesystem::path& file) {
  const std::string name = file.string();
  std::FILE* const fresh = std::fopen(name.c_str(), "wbx");
  if (fresh == nullptr) throw FileFaultText(file, std::generic_category().message(errno));
  std::fclose(fresh);

  sqlite3* connection = nullptr;
  int code = sqlite3_open_v2(name.c_str(), &connection, SQLITE_OPEN_READWRITE, nullptr);
  // Writes the first page, so that the file is known as a database from now on.
  if (code == SQLITE_OK) code = sqlite3_exec(connection, "PRAGMA user_version=0", nullptr, nullptr, nullptr);
  sqlite3_close_v2(connection);
  if (code == SQLITE_OK) return;
  std::error_code ignored;
  std::filesystem::remove(file, ignored);
  throw FileFaultText(file, sqlite3_errstr(code));
}

Savepoint::Savepoint(const Connection& connection) : connection_(connection) {
  connection_.Run("SAVEPOINT together");
}

Savepoint::~Savepoint() {
  if (!open_ || connection_.Autocommit()) return;
  RollBackQuietly(connection_, "ROLLBACK TO together");
  RollBackQuietly(connection_, "RELEASE together");
}

void Savepoint::Release() {
  connection_.Run("RELEASE together");
  open_ = false;
}

void RollBackQuietly(const Connection& connection, const char* sql) {
  if (sqlite3_exec(connection.Handle(), sql, nullptr, nullptr, nullptr) == SQLITE_OK) return;
  LogFailure(fmt::format("{}: {}: {}", connection.File().string(), sql, sqlite3_errmsg(connection.Handle())));
}

}  // namespace rbt

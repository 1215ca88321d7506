// SPDX-License-Identifier: MIT
#include <optional>
#include <system_error>
#include <variant>

#include <fmt/format.h>

#include "store/connection.h"
#include "store/connection_patience.h"

namespace rbt {
namespace {

/// A runtime's word at the beginning of the store's message, as `RegisterJetFunctions` puts it there.
std::optional<FaultKind> KindOfMessage(std::string_view message) {
  if (message == "integer overflow") return FaultKind::overflow;  // SQLite's own, of SUM and ABS
  for (const FaultKind kind : {FaultKind::overflow, FaultKind::division_by_zero, FaultKind::type_mismatch,
                               FaultKind::invalid_use_of_null}) {
    if (message.starts_with(FaultText(kind))) return kind;
  }
  return std::nullopt;
}

/// An error of the file, not of the statement.
bool IsOfStorage(int code) {
  switch (code & 0xFF) {
    case SQLITE_IOERR:
    case SQLITE_FULL:
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
    case SQLITE_PROTOCOL:
    case SQLITE_NOMEM:
    case SQLITE_INTERRUPT:
      return true;
    default:
      return false;
  }
}

/// The store's message, with the system's cause where it has one.
std::string MessageOf(sqlite3* connection, int code) {
  if (code == SQLITE_INTERRUPT) return "the statement comes to no end";
  std::string message = sqlite3_errmsg(connection);
  const int cause = sqlite3_system_errno(connection);
  const bool of_system = (code & 0xFF) == SQLITE_IOERR || (code & 0xFF) == SQLITE_CANTOPEN;
  return of_system && cause != 0 ? fmt::format("{} ({})", message, std::generic_category().message(cause))
                                 : message;
}

}  // namespace

bool IsHeldElsewhere(int code) { return (code & 0xFF) == SQLITE_BUSY || (code & 0xFF) == SQLITE_LOCKED; }

Fault StoppedFault(const std::filesystem::path& file, std::string_view doing) {
  return {FaultKind::stopped, fmt::format("the work was stopped by its user: {}: {}", file.string(), doing)};
}

Fault StoreFault(const Connection& connection, int code, std::string_view statement) {
  if (code == SQLITE_INTERRUPT && connection.Stopped()) return StoppedFault(connection.File(), statement);
  const std::string where = fmt::format("{}: {}", connection.File().string(), statement);
  if (IsHeldElsewhere(code)) {
    return {FaultKind::locked, fmt::format("another program holds the file: {}", where)};
  }
  const std::string message = MessageOf(connection.Handle(), code);
  if (code == SQLITE_CONSTRAINT_NOTNULL) {
    return {FaultKind::invalid_use_of_null, fmt::format("{}: {}", message, where)};
  }
  if (const auto kind = KindOfMessage(message)) {
    std::string_view rest = message;
    if (rest.starts_with(FaultText(*kind))) rest.remove_prefix(FaultText(*kind).size());
    if (rest.starts_with(": ")) rest.remove_prefix(2);
    return {*kind, rest.empty() ? where : fmt::format("{}: {}", rest, where)};
  }
  const FaultKind kind = IsOfStorage(code) ? FaultKind::storage : FaultKind::database;
  return {kind, fmt::format("{}: {}", message, where)};
}

bool Connection::Stopped() const { return patience_->Stopped(); }

Statement::Statement(const Connection& connection, std::string_view sql, std::string_view text)
    : connection_(&connection), text_(text) {
  sqlite3_stmt* statement = nullptr;
  const int code =
      sqlite3_prepare_v2(connection.Handle(), sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
  handle_.reset(statement);
  if (code != SQLITE_OK) throw StoreFault(connection, code, text_);
}

bool Statement::Step() {
  const bool writes_when_it_ends =
      sqlite3_stmt_readonly(handle_.get()) == 0 && sqlite3_get_autocommit(connection_->Handle()) != 0;
  connection_->patience_->BeginStep(!writes_when_it_ends);
  const int code = sqlite3_step(handle_.get());
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  // After the message is taken, so that the statement can be bound and run again.
  const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_reset)> reset(handle_.get(), &sqlite3_reset);
  throw StoreFault(*connection_, code, text_);
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
  if (code != SQLITE_OK) throw StoreFault(*connection_, code, text_);
}

std::string Statement::Text(int column) const {
  const unsigned char* const text = sqlite3_column_text(handle_.get(), column);
  if (text == nullptr) return {};
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(handle_.get(), column));
  return {text, text + size};
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include <sqlite3.h>

#include "platform/fault.h"
#include "platform/numbers/value.h"

namespace rbt {

/// The store's error of a connection as a fault: what our own functions and SQLite's arithmetic report in the
/// runtime's words keeps its kind, a null in a column that refuses it is `invalid use of null`; everything
/// else is `database` with the store's message, the file and the statement.
Fault StoreFault(sqlite3* connection, int code, std::string_view statement);

/// A prepared statement. `text` stands for it in faults: the statement the caller wrote.
class Statement {
 public:
  Statement() = default;
  Statement(sqlite3* connection, std::string_view sql, std::string_view text);

  /// True when there is a row, false at the end. Throws what `StoreFault` makes of an error.
  bool Step();
  void Reset() { sqlite3_reset(handle_.get()); }
  /// Parameters count from 1. Currency goes in as the double nearest to it.
  void Bind(int parameter, const Value& value);

  std::int64_t Integer(int column) const { return sqlite3_column_int64(handle_.get(), column); }
  /// Null and text alike as text.
  std::string Text(int column) const;
  bool IsNull(int column) const { return sqlite3_column_type(handle_.get(), column) == SQLITE_NULL; }

  sqlite3_stmt* Handle() const { return handle_.get(); }
  explicit operator bool() const { return handle_ != nullptr; }

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  std::unique_ptr<sqlite3_stmt, Finalize> handle_;
  std::string text_;
};

enum class OpenMode { read_write, read_only };

/// An open file, set up the way all files of the family are: journal mode DELETE, synchronous FULL,
/// double-quoted text never a literal, Jet's functions registered. For one thread at a time.
class Connection {
 public:
  /// Throws `file`, naming file and cause, when it is missing, empty, no database, a Jet file, or damaged.
  Connection(const std::filesystem::path& file, OpenMode mode);

  const std::filesystem::path& File() const { return file_; }
  sqlite3* Handle() const { return handle_.get(); }

  Statement Prepare(std::string_view sql) const { return {handle_.get(), sql, sql}; }
  Statement Prepare(std::string_view sql, std::string_view text) const { return {handle_.get(), sql, text}; }
  /// Runs one statement to its end; returns the rows it changed.
  std::int64_t Run(std::string_view sql, std::string_view text) const;
  std::int64_t Run(std::string_view sql) const { return Run(sql, sql); }
  /// The same for a prepared statement, which is reset and can run again.
  std::int64_t Run(Statement& statement) const;
  /// The first column of the first row; 0 when there is none.
  std::int64_t IntegerOf(std::string_view sql) const;
  /// True outside a transaction of the store.
  bool Autocommit() const { return sqlite3_get_autocommit(handle_.get()) != 0; }

 private:
  void Configure(OpenMode mode) const;

  struct Close {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
  };
  std::filesystem::path file_;
  std::unique_ptr<sqlite3, Close> handle_;
};

/// Makes an empty database; a file that exists throws `file`.
void CreateDatabaseFile(const std::filesystem::path& file);

/// Several statements that stand or fall together, inside a transaction or outside one. Undone when destroyed
/// without `Release`.
class Savepoint {
 public:
  explicit Savepoint(const Connection& connection);
  Savepoint(const Savepoint&) = delete;
  Savepoint& operator=(const Savepoint&) = delete;
  ~Savepoint();

  void Release();

 private:
  const Connection& connection_;
  bool open_ = true;
};

/// Undoes without throwing, for destructors; what fails is told by `LogFailure`.
void RollBackQuietly(const Connection& connection, const char* sql);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <sqlite3.h>

#include "platform/fault.h"
#include "platform/numbers/value.h"
#include "store/file_state.h"

namespace rbt {

class Connection;

/// The store's error of a connection as a fault: what our own functions and SQLite's arithmetic report in the
/// runtime's words keeps its kind, a null in a column that refuses it is `invalid use of null`, a file that
/// another program holds is `locked`, one that fails is `storage`; everything else is `database`. All but the
/// runtime's words come with the store's message, the file and the statement.
Fault StoreFault(const Connection& connection, int code, std::string_view statement);

/// The user has stopped what was done with a file.
Fault StoppedFault(const std::filesystem::path& file, std::string_view doing);

/// True of an error that says another program, or another connection, holds the file.
bool IsHeldElsewhere(int code);

/// A prepared statement. `text` stands for it in faults: the statement the caller wrote.
class Statement {
 public:
  Statement() = default;
  /// Must not outlive its connection.
  Statement(const Connection& connection, std::string_view sql, std::string_view text);

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
  const Connection* connection_ = nullptr;
  std::unique_ptr<sqlite3_stmt, Finalize> handle_;
  std::string text_;
};

enum class OpenMode { read_write, read_only };

/// An open file, set up the way all files of the family are: journal mode DELETE, synchronous FULL,
/// double-quoted text never a literal, triggers and views of the file never run, Jet's functions registered.
/// A file that another program holds is waited for as `LockWait` says. For one thread at a time.
class Connection {
 public:
  /// Throws `file`, naming file and cause, when it is missing, empty, no database, a Jet file, or damaged.
  Connection(const std::filesystem::path& file, OpenMode mode);
  /// A copy that no other program sees and that goes with the object, as the source stands at one moment.
  /// Faults name the source's file.
  static std::unique_ptr<Connection> CopyOf(const Connection& source);
  /// Writes the first page of an empty file.
  static void InitialiseFile(const std::filesystem::path& file);
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection();

  const std::filesystem::path& File() const { return file_; }
  sqlite3* Handle() const { return handle_.get(); }
  bool IsPrivateCopy() const { return private_copy_; }
  /// False when file, folder or the way it was opened leave no way to write it.
  bool MayBeWritten() const;
  /// Nothing where the file does not count its changes itself.
  std::optional<FileState> State() const;
  /// True when the name leads to another file by now, or to none.
  bool HasMoved() const;

  Statement Prepare(std::string_view sql) const { return {*this, sql, sql}; }
  Statement Prepare(std::string_view sql, std::string_view text) const { return {*this, sql, text}; }
  /// Runs one statement to its end; returns the rows it changed.
  std::int64_t Run(std::string_view sql, std::string_view text) const;
  std::int64_t Run(std::string_view sql) const { return Run(sql, sql); }
  /// The same for a prepared statement, which is reset and can run again.
  std::int64_t Run(Statement& statement) const;
  /// The first column of the first row; 0 when there is none.
  std::int64_t IntegerOf(std::string_view sql) const;
  /// True outside a transaction of the store.
  bool Autocommit() const { return sqlite3_get_autocommit(handle_.get()) != 0; }
  /// Reads of this connection see one state of the file, which no program changes, while the statement lives.
  Statement Hold() const;
  /// True when the statement that was interrupted last was so because the user has stopped the work.
  bool Stopped() const;
  /// Copies everything, as it stands at one moment, into an empty database that nobody else knows.
  void CopyInto(const Connection& target) const;

 private:
  friend class Statement;
  class Patience;
  struct Close {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
  };

  explicit Connection(std::filesystem::path file);  ///< nothing is open yet
  void Open(const std::string& name, int flags);
  void RequireDatabase() const;
  void Configure() const;
  void RequireSound() const;
  bool NeedsRecovery() const;
  void RunSetting(const char* sql) const;
  std::string Bytes(std::int64_t at, int count) const;

  std::filesystem::path file_;
  bool private_copy_ = false;
  std::unique_ptr<Patience> patience_;  ///< told of by the handle, which goes before it
  std::unique_ptr<sqlite3, Close> handle_;
};

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

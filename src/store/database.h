// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/numbers/value.h"
#include "store/file_state.h"
#include "store/recordset.h"
#include "store/schema/schema.h"

namespace rbt {

/// One database file of a site or of the family: an SQLite 3 file under its `.MDB` name. All statements are
/// in the Jet dialect. Movable, closes itself. Every failure throws `Fault` with the store's message, the
/// file and the statement: `database` where a statement is refused, `storage` where the file fails, `locked`
/// where another program held it for too long (or `overflow`, `division by zero`, `type mismatch` where that
/// is what went wrong). Reading never keeps others from reading; an UPDATE or DELETE that changes no row
/// takes no lock on writing.
class Database {
 public:
  /// The exact version of the store that works out what statements say.
  static std::string_view StoreVersion();

  /// Opens an existing file for reading and writing. Throws `file`/`database` when it is missing, is no
  /// database, is damaged, or is a real Jet file (which is named as such and left alone).
  static Database Open(const std::filesystem::path& file);
  static Database OpenReadOnly(const std::filesystem::path& file);
  /// Makes a new empty database; a file that exists throws `file`.
  static Database CreateDatabase(const std::filesystem::path& file);

  /// A copy that no other program sees, as the source stands at one moment: changes of it go with it. Its
  /// faults name the source's file.
  static Database CopyOf(const Database& source);

  Database(Database&&) noexcept;
  Database& operator=(Database&&) noexcept;
  ~Database();

  const std::filesystem::path& File() const;
  bool IsPrivateCopy() const;
  /// False when file, folder or the way it was opened leave no way to write it.
  bool MayBeWritten() const;
  /// How the file stands; nothing where it does not count its changes itself. Asked while the state is held
  /// it is that of what is read.
  std::optional<FileState> State() const;
  /// True when the name leads to another file by now, or to none.
  bool HasMoved() const;

  /// From now on all reads see one state, that of now, and other programs wait with their changes, until
  /// `LetGo` or the first write of one's own.
  void Hold();
  void LetGo();

  /// Opens a SELECT. `fields` narrows a `SELECT *` to what will be read: fields the table lacks are left out
  /// (ask `FindField`); empty reads all.
  Recordset OpenSnapshot(std::string_view jet_sql, std::span<const std::string_view> fields = {});
  /// Opens a SELECT over one table whose rows can be edited, added and deleted.
  Recordset OpenDynaset(std::string_view jet_sql, std::span<const std::string_view> fields = {});
  /// True when the SELECT has at least one row; stops at the first.
  bool HasRows(std::string_view jet_sql);

  /// Runs one statement that gives no rows, DDL included; returns the number of rows written. A row whose
  /// values an UPDATE would not change is not written.
  std::int64_t Execute(std::string_view jet_sql);
  /// Runs UPDATE statements over one table with the outcome of running them one after the other, in one pass:
  /// possible because each reads and writes only its own row. Returns the number of rows whose values
  /// changed; only those are written.
  std::int64_t ExecuteTogether(std::span<const std::string> updates);
  /// True when they would change a row; nothing is written.
  bool WouldChangeTogether(std::span<const std::string> updates);

  /// Tables in the order of their creation, internal ones (see `IsInternalTable`) left out; one whose key was
  /// added or dropped is new.
  std::vector<TableDef> TableDefs();
  /// Tables by their names, each with the words by which the file defines it and its indexes: what has equal
  /// words is equal. Quicker than to read the definitions.
  std::map<std::string, std::string> TableTexts();
  /// One table by its name (letter case and width ignored); null when there is none.
  std::unique_ptr<TableDef> FindTable(std::string_view name);
  /// Makes a table with its fields and indexes.
  void CreateTable(const TableDef& table);
  /// Appends a field to a table; existing rows get its default or null.
  void AppendField(std::string_view table, const FieldDef& field);
  void AppendIndex(std::string_view table, const IndexDef& index);

  class Impl;
  Impl& impl() { return *impl_; }

 private:
  explicit Database(std::unique_ptr<Impl> impl);
  std::unique_ptr<Impl> impl_;
};

/// A statement group that belongs together: after a kill or a power cut the file holds all of it or none. Not
/// committed when destroyed: rolled back. Transactions on one database do not nest.
class Transaction {
 public:
  explicit Transaction(Database& database);
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  ~Transaction();

  void Commit();
  /// The same, and what was committed is held, see `Database::Hold`: nobody changes it in between.
  void CommitAndHold();

 private:
  Database& database_;
  bool open_ = true;
};

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "store/connection.h"
#include "store/database_impl.h"
#include "store/dialect/translate.h"
#include "store/recordset.h"
#include "store/row_editor.h"
#include "store/stored_value.h"

namespace rbt {

/// One running SELECT, its columns, and the values that an edit laid over the current row.
class Recordset::Impl {
 public:
  struct Column {
    std::string name;
    std::string folded_name;
    std::optional<FieldDef> field;  ///< nothing: the value is what the file holds
  };

  /// `editor`: for a recordset whose rows can be changed; its select carries the row's number last.
  Impl(Database::Impl& database, SelectStatement select, std::string_view text,
       std::unique_ptr<RowEditor> editor = nullptr);

  bool Eof() const { return state_ == State::at_end; }
  void MoveNext();
  void MoveFirst();
  std::int64_t RecordCount();

  std::optional<FieldHandle> FindField(std::string_view name) const;
  int FieldCount() const { return static_cast<int>(columns_.size()); }
  const Column& ColumnAt(FieldHandle field) const;
  FieldPlace PlaceOf(FieldHandle field) const { return {table_, ColumnAt(field).name}; }
  std::string NotFound(std::string_view name) const;

  /// The row under the cursor; throws "no current record".
  sqlite3_stmt* Row() const {
    if (state_ != State::on_row) ThrowNoRow();
    return rows_.Handle();
  }
  /// The value an edit gave a field of the current row; null where the row's own stands.
  const Value* Edited(FieldHandle field) const { return overlaid_ ? EditedValue(field) : nullptr; }

  void Edit();
  void AddNew();
  void Set(FieldHandle field, const Value& value);
  void Update();
  void Delete();

 private:
  enum class State { on_row, deleted, at_end };
  enum class EditMode { none, edit, add };

  void Step();
  void UpdateRow();
  void StartEditing(EditMode mode);
  void DropEdits();
  const Value* EditedValue(FieldHandle field) const;
  RowEditor& Editor() const;
  std::int64_t RowNumber() const;
  [[noreturn]] void ThrowNoRow() const;
  Fault Refusal(std::string_view message) const;

  Database::Impl& database_;
  std::string text_;
  std::string count_sql_;
  std::string table_;  ///< empty for several
  Statement rows_;
  std::vector<Column> columns_;
  State state_ = State::at_end;

  std::unique_ptr<RowEditor> editor_;
  EditMode mode_ = EditMode::none;
  bool overlaid_ = false;                      ///< an edit runs, or has changed the current row
  std::vector<std::optional<Value>> pending_;  ///< set since Edit or AddNew
  std::vector<std::optional<Value>> written_;  ///< of the current row, since it was read
  std::unordered_set<std::int64_t> done_;      ///< rows the walk must not come upon again
};

}  // namespace rbt

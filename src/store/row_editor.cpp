// SPDX-License-Identifier: MIT
#include "store/row_editor.h"

#include <algorithm>

#include <fmt/format.h>

#include "platform/text/characters.h"
#include "store/dialect/quoting.h"
#include "store/stored_value.h"
#include "store/table_sql.h"

namespace rbt {

using dialect::QuoteName;

RowEditor::RowEditor(Database::Impl& database, const SelectStatement& select, std::string_view text)
    : database_(database), text_(text) {
  const StoredTable* const stored =
      select.tables.size() == 1 ? database.Schema().FindStored(select.tables.front()) : nullptr;
  if (stored == nullptr || select.grouped) {
    throw Fault{FaultKind::database, fmt::format("the rows of this statement cannot be edited: {}", text)};
  }
  table_ = stored->def.name;
  for (const auto& column : select.columns)
    columns_.push_back(column.field ? column.field->name : column.name);
  defaults_.resize(columns_.size());
  indexed_.resize(columns_.size());
  for (std::size_t f = 0; f < stored->def.fields.size(); ++f) Learn(*stored, f);
}

void RowEditor::Learn(const StoredTable& table, std::size_t field_index) {
  const FieldDef& field = table.def.fields[field_index];
  const auto place = std::find(columns_.begin(), columns_.end(), field.name);
  std::optional<std::size_t> column;
  if (place != columns_.end()) column = static_cast<std::size_t>(place - columns_.begin());
  if (field.autonumber) autonumbers_.push_back({field.name, IsAutonumberKey(table.def, field), column});
  if (!column) return;
  if (field.default_value) {
    defaults_[*column] = CheckedForField(field, Default(*field.default_value), {table_, field.name});
  }
  for (const IndexDef& index : table.def.indexes) {
    if (std::find(index.fields.begin(), index.fields.end(), field.name) == index.fields.end()) continue;
    indexed_[*column] = true;
    const bool row_number = index.primary && index.fields.size() == 1 &&
                            EqualIgnoringCase(table.declared_types[field_index], "INTEGER");
    if (row_number) row_number_column_ = column;
  }
}

RowEditor::Values RowEditor::NewRow() {
  Values row = defaults_;
  for (const Autonumber& autonumber : autonumbers_) {
    if (autonumber.column) row[*autonumber.column] = NextNumber(autonumber);
  }
  return row;
}

std::int64_t RowEditor::NextNumber(const Autonumber& autonumber) const {
  const std::string name = QuoteName(autonumber.field);
  const std::string last = fmt::format("SELECT ifnull(max({}), 0) AS last FROM {}", name, QuoteName(table_));
  if (!autonumber.is_key) return database_.Connected().IntegerOf(last) + 1;
  // A number that was given is not given again when its row is gone.
  Statement next = database_.Connected().Prepare(
      fmt::format("SELECT max(last) + 1 FROM ({} UNION ALL SELECT seq FROM sqlite_sequence WHERE name = ?1)",
                  last),
      text_);
  next.Bind(1, table_);
  next.Step();
  return next.Integer(0);
}

Value RowEditor::Default(const std::string& literal) const {
  Statement evaluate = database_.Connected().Prepare(fmt::format("SELECT {}", literal), text_);
  evaluate.Step();
  return ReadStored(evaluate.Handle(), 0, nullptr, {});
}

std::vector<std::size_t> RowEditor::ColumnsSet(const Values& values) const {
  std::vector<std::size_t> columns;
  for (std::size_t c = 0; c < values.size(); ++c) {
    if (values[c]) columns.push_back(c);
  }
  return columns;
}

Statement RowEditor::PrepareUpdate(const std::vector<std::size_t>& columns) const {
  std::string assignments;
  for (const std::size_t c : columns) {
    assignments += fmt::format("{}{} = ?", assignments.empty() ? "" : ", ", QuoteName(columns_[c]));
  }
  return database_.Connected().Prepare(
      fmt::format("UPDATE {} SET {} WHERE rowid = ?", QuoteName(table_), assignments), text_);
}

void RowEditor::Update(std::int64_t row, const Values& values) {
  const std::vector<std::size_t> columns = ColumnsSet(values);
  if (columns.empty()) return;
  database_.StartWriting(text_);
  Statement& update = updates_[columns];
  if (!update) update = PrepareUpdate(columns);
  int parameter = 0;
  for (const std::size_t c : columns) update.Bind(++parameter, *values[c]);
  update.Bind(++parameter, Value{row});
  RequireFound(database_.Connected().Run(update));
}

Statement RowEditor::PrepareInsert(const std::vector<std::size_t>& columns) const {
  std::vector<std::string> names;
  names.reserve(columns.size() + autonumbers_.size());
  for (const std::size_t c : columns) names.push_back(columns_[c]);
  for (const Autonumber& autonumber : autonumbers_) {
    if (!autonumber.column && !autonumber.is_key) names.push_back(autonumber.field);
  }
  return database_.Connected().Prepare(InsertSql(table_, names), text_);
}

std::int64_t RowEditor::Insert(const Values& values) {
  database_.StartWriting(text_);
  const std::vector<std::size_t> columns = ColumnsSet(values);
  Statement& insert = inserts_[columns];
  if (!insert) insert = PrepareInsert(columns);
  int parameter = 0;
  for (const std::size_t c : columns) insert.Bind(++parameter, *values[c]);
  for (const Autonumber& autonumber : autonumbers_) {
    // A key that is not in the recordset is numbered by the store.
    if (!autonumber.column && !autonumber.is_key) insert.Bind(++parameter, Value{NextNumber(autonumber)});
  }
  database_.Connected().Run(insert);
  return sqlite3_last_insert_rowid(database_.Connected().Handle());
}

void RowEditor::Delete(std::int64_t row) {
  database_.StartWriting(text_);
  if (!delete_) {
    delete_ = database_.Connected().Prepare(fmt::format("DELETE FROM {} WHERE rowid = ?", QuoteName(table_)),
                                            text_);
  }
  delete_.Bind(1, Value{row});
  RequireFound(database_.Connected().Run(delete_));
}

void RowEditor::RequireFound(std::int64_t changed) const {
  if (changed > 0) return;
  throw Fault{FaultKind::database, fmt::format("the record of {} has been deleted: {}: {}", table_,
                                               database_.Connected().File().string(), text_)};
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "store/recordset_impl.h"

#include <utility>

#include <fmt/format.h>

#include "platform/text/characters.h"
#include "store/column_search.h"

namespace rbt {

Recordset::Impl::Impl(Database::Impl& database, SelectStatement select, std::string_view text,
                      std::unique_ptr<RowEditor> editor)
    : database_(database),
      text_(text),
      count_sql_(std::move(select.count_sql)),
      table_(select.tables.size() == 1 ? select.tables.front() : ""),
      rows_(database.Connected().Prepare(select.sql, text)),
      editor_(std::move(editor)) {
  for (auto& column : select.columns) {
    const char* const declared = sqlite3_column_decltype(rows_.Handle(), FieldCount());
    if (column.field && !HasKnownType(declared == nullptr ? "" : declared)) column.field.reset();
    columns_.push_back({column.name, FoldIdentifier(column.name), std::move(column.field)});
  }
  pending_.resize(columns_.size());
  written_.resize(columns_.size());
  Step();
}

void Recordset::Impl::Step() {
  state_ = State::at_end;
  while (rows_.Step()) {
    if (!done_.empty() && done_.contains(RowNumber())) continue;
    state_ = State::on_row;
    return;
  }
}

void Recordset::Impl::MoveNext() {
  if (state_ == State::at_end) ThrowNoRow();
  DropEdits();
  Step();
}

void Recordset::Impl::MoveFirst() {
  DropEdits();
  done_.clear();
  rows_.Reset();
  Step();
}

std::int64_t Recordset::Impl::RecordCount() {
  Statement count = database_.Connected().Prepare(count_sql_, text_);
  return count.Step() ? count.Integer(0) : 0;
}

std::optional<FieldHandle> Recordset::Impl::FindField(std::string_view name) const {
  return FindColumn(columns_, name);
}

const Recordset::Impl::Column& Recordset::Impl::ColumnAt(FieldHandle field) const {
  const auto index = static_cast<std::size_t>(field.index);
  if (index >= columns_.size()) {
    throw Fault{FaultKind::field_not_found, fmt::format("column {}: {}", field.index, text_)};
  }
  return columns_[index];
}

std::string Recordset::Impl::NotFound(std::string_view name) const {
  return fmt::format("{}: {}: {}", FieldPlace{table_, name}.Text(), database_.Connected().File().string(),
                     text_);
}

void Recordset::Impl::Edit() {
  Editor();
  Row();
  StartEditing(EditMode::edit);
}

void Recordset::Impl::AddNew() {
  RowEditor::Values fresh = Editor().NewRow();
  StartEditing(EditMode::add);
  pending_ = std::move(fresh);
}

void Recordset::Impl::StartEditing(EditMode mode) {
  pending_.assign(columns_.size(), std::nullopt);
  mode_ = mode;
  overlaid_ = true;
}

void Recordset::Impl::Set(FieldHandle field, const Value& value) {
  const Column& column = ColumnAt(field);
  if (mode_ == EditMode::none) throw Refusal("neither Edit nor AddNew was called");
  const FieldPlace place = PlaceOf(field);
  Value checked = column.field ? CheckedForField(*column.field, value, place) : value;
  const auto index = static_cast<std::size_t>(field.index);
  if (mode_ == EditMode::edit) {
    const bool same =
        written_[index] ? *written_[index] == checked : SameAsStored(Row(), field.index, checked);
    if (same) {
      pending_[index].reset();
      return;
    }
    if (column.field && column.field->autonumber) {
      throw Refusal(fmt::format("{} is an autonumber and cannot be changed", place.Text()));
    }
  }
  pending_[index] = std::move(checked);
}

void Recordset::Impl::Update() {
  switch (mode_) {
    case EditMode::none:
      throw Refusal("neither Edit nor AddNew was called");
    case EditMode::add: {
      const std::int64_t row = Editor().Insert(pending_);
      if (state_ != State::at_end) done_.insert(row);
      break;
    }
    case EditMode::edit:
      UpdateRow();
      break;
  }
  pending_.assign(columns_.size(), std::nullopt);
  mode_ = EditMode::none;
}

void Recordset::Impl::UpdateRow() {
  Editor().Update(RowNumber(), pending_);
  bool moves = false;
  for (std::size_t c = 0; c < pending_.size(); ++c) {
    if (!pending_[c]) continue;
    moves = moves || Editor().MovesRow(c);
    written_[c] = std::move(pending_[c]);
  }
  // The walk may follow an index: a row that moves in it must not be come upon again.
  if (moves) done_.insert(RowNumber());
}

void Recordset::Impl::Delete() {
  Row();
  Editor().Delete(RowNumber());
  DropEdits();
  state_ = State::deleted;
}

void Recordset::Impl::DropEdits() {
  if (!overlaid_) return;
  pending_.assign(columns_.size(), std::nullopt);
  written_.assign(columns_.size(), std::nullopt);
  mode_ = EditMode::none;
  overlaid_ = false;
}

const Value* Recordset::Impl::EditedValue(FieldHandle field) const {
  static const Value kNull;
  ColumnAt(field);
  const auto index = static_cast<std::size_t>(field.index);
  if (pending_[index]) return &*pending_[index];
  if (mode_ == EditMode::add) return &kNull;
  return written_[index] ? &*written_[index] : nullptr;
}

RowEditor& Recordset::Impl::Editor() const {
  if (!editor_) throw Refusal("the rows of a snapshot cannot be edited");
  return *editor_;
}

std::int64_t Recordset::Impl::RowNumber() const {
  const auto own = editor_->RowNumberColumn();
  if (own && written_[*own]) return std::get<std::int64_t>(*written_[*own]);
  return sqlite3_column_int64(rows_.Handle(), static_cast<int>(columns_.size()));
}

void Recordset::Impl::ThrowNoRow() const {
  throw Refusal(state_ == State::deleted ? "the record is deleted" : "no current record");
}

Fault Recordset::Impl::Refusal(std::string_view message) const {
  return {FaultKind::database,
          fmt::format("{}: {}: {}", message, database_.Connected().File().string(), text_)};
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "store/grouped_rows.h"

#include <utility>

#include "store/database_impl.h"
#include "store/gathered_groups.h"
#include "store/row_taker.h"

namespace rbt {

namespace {

/// Thrown through a walk that comes upon a row which only the store itself can group.
struct StoreMustGroup {};

/// Null where the store itself has to group.
std::unique_ptr<GatheredGroups> Gather(Database& database, std::string_view jet_sql) {
  const SelectStatement select = database.impl().TranslateSelect(jet_sql, {.rows_to_group = true});
  auto groups = GatheredGroups::For(select);
  if (groups == nullptr) return nullptr;
  Statement statement = database.impl().Connected().Prepare(select.rows_to_group->sql, jet_sql);
  try {
    TakeRows(statement, [&](sqlite3_value** values) {
      if (!groups->Add(values)) throw StoreMustGroup();
    });
  } catch (const StoreMustGroup&) {
    return nullptr;
  }
  groups->Close();
  return groups;
}

}  // namespace

GroupedRows::GroupedRows(Database& database, std::string_view jet_sql)
    : GroupedRows(database, jet_sql, Gather(database, jet_sql)) {}

GroupedRows::GroupedRows(Database& database, std::string_view jet_sql, std::unique_ptr<GatheredGroups> groups)
    : database_(database), text_(jet_sql), groups_(std::move(groups)) {
  if (!groups_) snapshot_ = std::make_unique<Recordset>(database.OpenSnapshot(jet_sql));
}

GroupedRows::~GroupedRows() = default;

bool GroupedRows::Eof() const { return groups_ ? groups_->Eof() : snapshot_->Eof(); }

void GroupedRows::MoveNext() {
  if (!groups_) return snapshot_->MoveNext();
  groups_->MoveNext();
}

FieldHandle GroupedRows::Field(std::string_view name) const {
  const auto field = FindField(name);
  return field ? *field : database_.OpenSnapshot(text_).Field(name);
}

std::optional<FieldHandle> GroupedRows::FindField(std::string_view name) const {
  return groups_ ? groups_->FindField(name) : snapshot_->FindField(name);
}

std::optional<std::int32_t> GroupedRows::Int32(FieldHandle field) const {
  return groups_ ? groups_->Int32(field) : snapshot_->Int32(field);
}

std::optional<double> GroupedRows::Double(FieldHandle field) const {
  return groups_ ? groups_->Double(field) : snapshot_->Double(field);
}

std::optional<std::string> GroupedRows::Text(FieldHandle field) const {
  return groups_ ? groups_->Text(field) : snapshot_->Text(field);
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "store/gathered_groups.h"

#include "platform/numbers/number_words.h"
#include "platform/text/characters.h"
#include "store/column_search.h"

namespace rbt {

std::unique_ptr<GatheredGroups> GatheredGroups::For(const SelectStatement& select) {
  const auto& grouping = select.rows_to_group;
  if (!grouping || grouping->rows.values.size() > GroupTable::kMostValues) return nullptr;
  return std::unique_ptr<GatheredGroups>(new GatheredGroups(select));
}

GatheredGroups::GatheredGroups(const SelectStatement& select)
    : table_(select.rows_to_group->keys,
             select.rows_to_group->rows.values.size() - select.rows_to_group->keys.size()),
      table_name_(select.tables.front()) {
  columns_.reserve(select.columns.size());
  for (const auto& column : select.columns) {
    const std::size_t value = select.rows_to_group->columns[columns_.size()];
    columns_.push_back({column.name, FoldIdentifier(column.name), value});
  }
}

bool GatheredGroups::Add(sqlite3_value** values) {
  store_must_group_ = store_must_group_ || !table_.Add(values);
  return !store_must_group_;
}

bool GatheredGroups::Close() {
  if (!store_must_group_) table_.Sort();
  return !store_must_group_;
}

std::optional<FieldHandle> GatheredGroups::FindField(std::string_view name) const {
  return FindColumn(columns_, name);
}

std::optional<std::int32_t> GatheredGroups::Int32(FieldHandle field) const {
  const std::size_t value = ColumnOf(field).value;
  if (table_.IsNull(current_, value)) return std::nullopt;
  if (table_.KindOf(value) == Key::whole) return NarrowInt32(table_.Whole(current_, value), PlaceOf(field));
  return ToInt32(*Double(field), PlaceOf(field).Text());
}

std::optional<double> GatheredGroups::Double(FieldHandle field) const {
  const std::size_t value = ColumnOf(field).value;
  if (table_.IsNull(current_, value)) return std::nullopt;
  switch (table_.KindOf(value)) {
    case Key::real:
      return table_.Real(current_, value);
    case Key::text:
      return NumberOfText(table_.Text(current_, value), PlaceOf(field).Text());
    case Key::whole:
      break;
  }
  return static_cast<double>(table_.Whole(current_, value));
}

std::optional<std::string> GatheredGroups::Text(FieldHandle field) const {
  const std::size_t value = ColumnOf(field).value;
  if (table_.IsNull(current_, value)) return std::nullopt;
  switch (table_.KindOf(value)) {
    case Key::real:
      return TextOf(table_.Real(current_, value));
    case Key::text:
      return std::string(table_.Text(current_, value));
    case Key::whole:
      break;
  }
  return TextOf(table_.Whole(current_, value));
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "store/dialect/select_writer.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>

#include "platform/text/characters.h"
#include "store/dialect/quoting.h"

namespace rbt::dialect {
namespace {

/// Jet numbers the columns it has to name from here.
constexpr std::size_t kFirstUnnamed = 1000;

std::string SortKey(const FieldDef& field) {
  const std::string name = QuoteName(field.name);
  return ClassOf(field.type) == ValueClass::text ? name + " COLLATE NOCASE" : name;
}

/// How the values of a field that is grouped by compare; nothing for types that nobody groups by.
std::optional<RowsToGroup::Key> KeyOf(const FieldDef& field) {
  switch (field.type) {
    case FieldType::byte:
    case FieldType::integer16:
    case FieldType::integer32:
      return RowsToGroup::Key::whole;
    case FieldType::real:
      return RowsToGroup::Key::real;
    case FieldType::text:
    case FieldType::memo:
      return RowsToGroup::Key::text;
    default:
      return std::nullopt;
  }
}

}  // namespace

SelectWriter::SelectWriter(const Select& select, const Scope& scope)
    : select_(select), scope_(scope), table_(scope.Table(select.table)), writer_(scope.Statement(), &table_) {
  if (select.where) condition_ = writer_.Condition(*select.where);
  grouped_ = !select.group_by.empty() || std::ranges::any_of(select.items, [](const SelectItem& item) {
    return HasAggregate(*item.value);
  });
  if (grouped_) WriteGroups();
  WriteColumns();
  WriteOrder();
}

void SelectWriter::WriteGroups() {
  for (const ColumnName& column : select_.group_by) group_.push_back(&writer_.Field(column));
  writer_.Group(group_);
}

void SelectWriter::WriteColumns() {
  if (select_.items.empty()) {
    if (grouped_) scope_.RefuseAt(select_.table.place, "* is no column of a grouped result");
    for (const FieldDef& field : table_.fields) {
      columns_.push_back({field.name,
                          select_.table.place,
                          {.sql = QuoteName(field.name), .value = ClassOf(field.type), .field = &field}});
    }
    return;
  }
  const auto is_taken = [this](const std::string& name) {
    return std::ranges::any_of(
        columns_, [&](const Column& column) { return FoldIdentifier(column.name) == FoldIdentifier(name); });
  };
  for (const SelectItem& item : select_.items) {
    WrittenValue value = writer_.Value(*item.value);
    std::string name;
    if (item.alias) {
      name = item.alias->text;
      if (is_taken(name)) scope_.RefuseAt(item.alias->place, "two columns of one name");
    } else if (value.field != nullptr && !is_taken(value.field->name)) {
      name = value.field->name;
    } else {
      name = fmt::format("Expr{}", kFirstUnnamed + columns_.size());
    }
    columns_.push_back({std::move(name), item.value->place, std::move(value)});
  }
}

void SelectWriter::WriteOrder() {
  std::vector<const FieldDef*> used;
  for (const OrderTerm& term : select_.order_by) {
    const FieldDef& field = writer_.Field(term.column);
    if (grouped_ && std::ranges::find(group_, &field) == group_.end()) {
      scope_.RefuseAt(term.column.field.place, "a field that is neither grouped by nor aggregated");
    }
    used.push_back(&field);
    order_.push_back(SortKey(field) + (term.descending ? " DESC" : ""));
  }
  if (!grouped_) order_.emplace_back(RowNumberOf(table_));
  for (const FieldDef* const field : group_) {
    if (std::ranges::find(used, field) == used.end()) order_.push_back(SortKey(*field));
  }
}

std::string SelectWriter::Where() const {
  return condition_.empty() ? std::string() : fmt::format(" WHERE {}", condition_);
}

std::string SelectWriter::Body(const std::string& columns) const {
  // An index would change the order in which doubles are added up, and with it the last digit.
  const std::string_view scan = grouped_ && writer_.DependsOnRowOrder() ? " NOT INDEXED" : "";
  std::string sql = fmt::format("SELECT {} FROM {}{}{}", columns, QuoteName(table_.name), scan, Where());
  std::vector<std::string> keys;
  keys.reserve(group_.size());
  for (const FieldDef* const field : group_) keys.push_back(SortKey(*field));
  if (!keys.empty()) sql += fmt::format(" GROUP BY {}", fmt::join(keys, ", "));
  return sql;
}

std::string SelectWriter::Sql(const std::vector<std::string>& columns) const {
  std::string sql = Body(fmt::format("{}", fmt::join(columns, ", ")));
  if (!order_.empty()) sql += fmt::format(" ORDER BY {}", fmt::join(order_, ", "));
  return sql;
}

/// Each row on its own. Without an index, and without an order of the statement's own, SQLite has no other
/// way through a table than row by row.
std::string SelectWriter::Walked(const std::vector<std::string>& columns, std::string_view order) const {
  const std::string source = fmt::format("FROM {}{}", QuoteName(table_.name), Where());
  if (select_.order_by.empty() && table_.indexes.empty()) {
    return fmt::format("SELECT {}(?1, {}) {}", kEachRow, fmt::join(columns, ", "), source);
  }
  std::vector<std::string> named;
  std::vector<std::string> names;
  for (const std::string& column : columns) {
    names.push_back(fmt::format("\".{}\"", names.size()));
    named.push_back(fmt::format("{} AS {}", column, names.back()));
  }
  return fmt::format("SELECT {}(?1, {}) FROM (SELECT {} {} ORDER BY {})", kEachRow, fmt::join(names, ", "),
                     fmt::join(named, ", "), source, order);
}

std::string SelectWriter::WalkSql(const std::vector<std::string>& columns) const {
  return Walked(columns, fmt::format("{}", fmt::join(order_, ", ")));
}

std::optional<RowsOfScan> SelectWriter::ScannedRows(std::vector<std::string> values) const {
  if (!select_.order_by.empty()) return std::nullopt;
  return RowsOfScan{condition_, std::move(values)};
}

/// The field of whole numbers whose plain sum an item is; null for anything else.
const FieldDef* SelectWriter::SummedField(const Expression& item) const {
  const auto* const call = std::get_if<Call>(&item.node);
  if (call == nullptr || !EqualIgnoringCase(call->function.text, "SUM") || call->arguments.size() != 1) {
    return nullptr;
  }
  const auto* const column = std::get_if<ColumnName>(&call->arguments.front()->node);
  if (column == nullptr) return nullptr;
  const FieldDef& field = writer_.Field(*column);
  return ClassOf(field.type) == ValueClass::whole ? &field : nullptr;
}

std::optional<RowsToGroup> SelectWriter::RowsOfGroups() const {
  if (group_.empty() || !select_.order_by.empty()) return std::nullopt;
  RowsToGroup rows;
  std::vector<std::string> handed;
  for (const FieldDef* const field : group_) {
    const auto key = KeyOf(*field);
    if (!key) return std::nullopt;
    rows.keys.push_back(*key);
    handed.push_back(QuoteName(field->name));
  }
  for (const SelectItem& item : select_.items) {
    if (const auto* const column = std::get_if<ColumnName>(&item.value->node)) {
      const auto found = std::ranges::find(group_, &writer_.Field(*column));
      rows.columns.push_back(static_cast<std::size_t>(found - group_.begin()));
    } else if (const FieldDef* const summed = SummedField(*item.value)) {
      rows.columns.push_back(handed.size());
      handed.push_back(QuoteName(summed->name));
    } else {
      return std::nullopt;
    }
  }
  rows.sql = Walked(handed, RowNumberOf(table_));
  rows.rows = {condition_, std::move(handed)};
  return rows;
}

std::string SelectWriter::CountSql() const {
  if (!grouped_) return Body("count(*)");
  // An aggregate keeps the inner statement one of groups, whatever its columns are.
  return fmt::format("SELECT count(*) FROM ({})", Body("count(*)"));
}

}  // namespace rbt::dialect

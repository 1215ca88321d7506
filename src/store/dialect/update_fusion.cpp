// SPDX-License-Identifier: MIT
#include "store/dialect/update_fusion.h"

#include <algorithm>

#include <fmt/format.h>

#include "store/dialect/quoting.h"

namespace rbt::dialect {
namespace {

// Names of the query's own: no field's name has a point.
constexpr std::string_view kRow = "\".\"";
std::string OldName(const FieldDef& field) { return QuoteName(".old." + field.name); }
constexpr std::string_view kChanged = "\".changed\"";
std::string LayerName(std::size_t layer) { return fmt::format("\".layer{}\"", layer); }
std::string TestName(std::size_t test) { return fmt::format("\".test{}\"", test); }

bool Contains(const std::vector<const FieldDef*>& fields, const FieldDef* field) {
  return std::ranges::find(fields, field) != fields.end();
}

void Include(std::vector<const FieldDef*>& fields, const FieldDef* field) {
  if (!Contains(fields, field)) fields.push_back(field);
}

}  // namespace

std::string UpdateFusion::Share(const FieldDef& field, const std::string& test) {
  if (Contains(targets_, &field)) return test;
  Include(layers_.front().reads, &field);
  const auto found = std::ranges::find(tests_, test);
  const auto index = static_cast<std::size_t>(found - tests_.begin());
  if (found == tests_.end()) tests_.push_back(test);
  return TestName(index);
}

UpdateFusion::Layer& UpdateFusion::LayerFor(const WrittenUpdate& update, bool has_shared_test) {
  std::size_t lowest = has_shared_test ? 1 : 0;
  for (std::size_t i = lowest; i < layers_.size(); ++i) {
    const auto sets = [&](const FieldDef* field) { return layers_[i].settings.contains(field); };
    const auto sets_or_reads = [&](const WrittenAssignment& assignment) {
      return sets(assignment.field) || Contains(layers_[i].reads, assignment.field);
    };
    if (std::ranges::any_of(update.assignments, sets_or_reads)) lowest = i;
    if (std::ranges::any_of(update.fields_read, sets)) lowest = i + 1;
  }
  if (lowest >= layers_.size()) layers_.resize(lowest + 1);
  return layers_[lowest];
}

void UpdateFusion::Append(const Update& update, const Scope& scope) {
  bool has_shared_test = false;
  const WrittenUpdate written =
      WriteAssignments(update, table_, scope, [&](const FieldDef& field, const std::string& test) {
        std::string shared = Share(field, test);
        has_shared_test = has_shared_test || shared != test;
        return shared;
      });
  Layer& layer = LayerFor(written, has_shared_test);
  for (const FieldDef* const field : written.fields_read) Include(layer.reads, field);
  for (const WrittenAssignment& assignment : written.assignments) {
    Include(targets_, assignment.field);
    Setting& setting = layer.settings[assignment.field];
    if (written.where.empty()) {
      setting = {.cases = "", .otherwise = assignment.value.sql};
    } else {
      setting.cases = fmt::format(" WHEN {} THEN {}{}", written.where, assignment.value.sql, setting.cases);
    }
  }
}

/// What each layer has to give to the one above it.
std::vector<UpdateFusion::Fields> UpdateFusion::NeededByLayer() const {
  std::vector<Fields> needed(layers_.size());
  needed.back() = targets_;
  for (std::size_t i = layers_.size() - 1; i > 0; --i) {
    const Layer& layer = layers_[i];
    for (const FieldDef* const field : needed[i]) {
      const auto setting = layer.settings.find(field);
      const bool is_replaced = setting != layer.settings.end() && !setting->second.otherwise.empty();
      if (!is_replaced) Include(needed[i - 1], field);
    }
    for (const FieldDef* const field : layer.reads) Include(needed[i - 1], field);
  }
  return needed;
}

std::string UpdateFusion::ColumnSql(const Layer& layer, const FieldDef& field) const {
  std::string name = QuoteName(field.name);
  const auto found = layer.settings.find(&field);
  if (found == layer.settings.end()) return name;
  const auto& [cases, otherwise] = found->second;
  const std::string& last = otherwise.empty() ? name : otherwise;
  return cases.empty() ? fmt::format("{} AS {}", last, name)
                       : fmt::format("CASE{} ELSE {} END AS {}", cases, last, name);
}

/// The layers as named queries, the bottom one first. A query with a limit is not folded into the one that
/// reads it, which would work its columns out again.
std::string UpdateFusion::LayersSql() const {
  const std::vector<Fields> needed = NeededByLayer();
  std::string sql = "WITH ";
  for (std::size_t i = 0; i < layers_.size(); ++i) {
    const bool bottom = i == 0;
    const bool top = i + 1 == layers_.size();
    std::string columns = bottom ? fmt::format("{} AS {}", RowNumberOf(table_), kRow) : std::string(kRow);
    for (const FieldDef* const field : targets_) {
      columns += bottom ? fmt::format(", {} AS {}", QuoteName(field->name), OldName(*field))
                        : fmt::format(", {}", OldName(*field));
    }
    for (const FieldDef* const field : needed[i])
      columns += fmt::format(", {}", ColumnSql(layers_[i], *field));
    for (std::size_t test = 0; test < tests_.size() && !top; ++test) {
      columns += bottom ? fmt::format(", {} AS {}", tests_[test], TestName(test))
                        : fmt::format(", {}", TestName(test));
    }
    const std::string source = bottom ? QuoteName(table_.name) : LayerName(i - 1);
    sql += fmt::format("{} AS (SELECT {} FROM {} LIMIT -1), ", LayerName(i), columns, source);
  }
  return sql;
}

ChangeStatement UpdateFusion::Statement() const {
  std::vector<std::string> settings;
  std::vector<std::string> differences;
  for (const FieldDef* const field : targets_) {
    const std::string name = QuoteName(field->name);
    settings.push_back(fmt::format("{} = {}.{}", name, kChanged, name));
    differences.push_back(fmt::format("{} IS NOT {}", name, OldName(*field)));
  }
  const std::string table = QuoteName(table_.name);
  const std::string changed =
      fmt::format("{}{} AS (SELECT * FROM {} WHERE {} LIMIT -1)", LayersSql(), kChanged,
                  LayerName(layers_.size() - 1), fmt::join(differences, " OR "));
  return {fmt::format("{} UPDATE {} SET {} FROM {} WHERE {}.{} = {}.{}", changed, table,
                      fmt::join(settings, ", "), kChanged, table, RowNumberOf(table_), kChanged, kRow),
          table_.name, fmt::format("{} SELECT 1 FROM {}", changed, kChanged)};
}

}  // namespace rbt::dialect

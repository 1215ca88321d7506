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

std::size_t TimesIn(std::string_view sql, std::string_view word) {
  std::size_t times = 0;
  for (std::size_t at = sql.find(word); at != std::string_view::npos; at = sql.find(word, at + word.size()))
    ++times;
  return times;
}

/// Whether working a value out can end the statement: only functions of our own can, and not all of them.
bool MayFault(std::string_view sql) {
  constexpr std::string_view kOwn = "jet_";
  constexpr std::string_view kHarmless = "jet_concatenate(";
  for (std::size_t at = sql.find(kOwn); at != std::string_view::npos; at = sql.find(kOwn, at + 1)) {
    if (!sql.substr(at).starts_with(kHarmless)) return true;
  }
  return false;
}

}  // namespace

std::string UpdateFusion::Share(const FieldDef& field, const std::string& test) {
  if (Contains(targets_, &field)) return test;
  Include(layers_.front().reads, &field);
  Include(tested_, &field);
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
      setting = {.cases = "", .otherwise = assignment.value.sql, .reads = written.fields_read};
    } else {
      setting.cases = fmt::format(" WHEN {} THEN {}{}", written.where, assignment.value.sql, setting.cases);
      for (const FieldDef* const field : written.fields_read) Include(setting.reads, field);
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

/// `name`: the field below.
std::string UpdateFusion::SqlOf(const Setting& setting, const std::string& name) {
  const std::string& last = setting.otherwise.empty() ? name : setting.otherwise;
  return setting.cases.empty() ? last : fmt::format("CASE{} ELSE {} END", setting.cases, last);
}

std::string UpdateFusion::ColumnSql(const Layer& layer, const FieldDef& field) const {
  const std::string name = QuoteName(field.name);
  const auto found = layer.settings.find(&field);
  return found == layer.settings.end() ? name : fmt::format("{} AS {}", SqlOf(found->second, name), name);
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
  return IsSeparable() ? SeparateStatement() : LayeredStatement();
}

ChangeStatement UpdateFusion::LayeredStatement() const {
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

bool UpdateFusion::IsSetBelow(const FieldDef* field, std::size_t layer) const {
  for (std::size_t below = 0; below < layer; ++below) {
    if (layers_[below].settings.contains(field)) return true;
  }
  return false;
}

/// True where every field's layers read, beside the field itself, the row as it was.
bool UpdateFusion::IsSeparable() const {
  // Layers of a field stand within each other: SQLite does not read them at any depth.
  constexpr std::size_t kDeepest = 8;
  if (layers_.size() > kDeepest) return false;
  if (std::ranges::any_of(tested_, [&](const FieldDef* field) { return Contains(targets_, field); }))
    return false;
  for (std::size_t i = 0; i < layers_.size(); ++i) {
    for (const auto& [target, setting] : layers_[i].settings) {
      const auto is_other = [&, own = target](const FieldDef* read) {
        return read != own && IsSetBelow(read, i);
      };
      if (std::ranges::any_of(setting.reads, is_other)) return false;
    }
  }
  // Of two that can fault in one row the second would come too late, behind other rows.
  return std::ranges::count_if(targets_, [&](const FieldDef* field) { return MayFault(ValueOf(*field)); }) <=
         1;
}

/// A field's value when all statements have run, of the row as it was. A query with a limit is not folded
/// into the one that reads it. What is read once needs no query, which would cost more than it spares.
std::string UpdateFusion::ValueOf(const FieldDef& field) const {
  const std::string name = QuoteName(field.name);
  std::string value = name;
  for (const Layer& layer : layers_) {
    const auto found = layer.settings.find(&field);
    if (found == layer.settings.end()) continue;
    const Setting& setting = found->second;
    const bool reads_itself = TimesIn(setting.cases, name) + TimesIn(setting.otherwise, name) > 0;
    std::string sql = SqlOf(setting, reads_itself ? name : value);
    std::string below;
    if (reads_itself && value != name) below = fmt::format("{} AS {}", value, name);
    for (std::size_t test = 0; test < tests_.size(); ++test) {
      const std::string test_name = TestName(test);
      const std::size_t times = TimesIn(sql, test_name);
      if (times == 1) sql.replace(sql.find(test_name), test_name.size(), fmt::format("({})", tests_[test]));
      if (times > 1) below += fmt::format("{}{} AS {}", below.empty() ? "" : ", ", tests_[test], test_name);
    }
    value = below.empty() ? sql : fmt::format("(SELECT {} FROM (SELECT {} LIMIT -1))", sql, below);
  }
  return value;
}

ChangeStatement UpdateFusion::SeparateStatement() const {
  std::vector<std::string> settings;
  std::string differences;
  for (const FieldDef* const field : targets_) {
    const std::string value = ValueOf(*field);
    const std::string name = QuoteName(field->name);
    settings.push_back(fmt::format("{} = {}", name, value));
    const std::string difference = fmt::format(" WHEN {} IS NOT {} THEN 1", name, value);
    // What can fault is worked out for every row in turn, also for one that changes anyway.
    differences.insert(MayFault(value) ? 0 : differences.size(), difference);
  }
  const std::string table = QuoteName(table_.name);
  const std::string guard = fmt::format("CASE{} ELSE 0 END", differences);
  return {fmt::format("UPDATE {} SET {} WHERE {}", table, fmt::join(settings, ", "), guard), table_.name,
          fmt::format("SELECT 1 FROM {} WHERE {}", table, guard)};
}

}  // namespace rbt::dialect

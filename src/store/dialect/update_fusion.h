// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "store/dialect/change_writer.h"
#include "store/dialect/scope.h"

namespace rbt::dialect {

/// Puts UPDATEs of one table together into one statement with the outcome of running them in turn. Each row's
/// new values depend on its old ones alone, so the statements become layers of a query over the table:
///
///     SELECT row number, CASE WHEN where_n THEN value_n ... WHEN where_1 THEN value_1 ELSE field END ...
///     FROM the layer below, or the table
///
/// A statement stands in the lowest layer that lies above those which set what it reads, and not below those
/// which read, or set before it, what it sets. List tests of fields that no statement has set stand in the
/// bottom layer, each once. So no expression is worked out twice for a row, and the query grows only as the
/// statements do. Only rows whose values come out different are written. A value that a later statement of
/// its layer replaces is not worked out, and so cannot fault.
///
/// Where no field's new value takes part in another's, each field has layers of its own instead, which carry
/// nothing but that field:
///
///     UPDATE table SET field = (SELECT CASE ... END FROM (SELECT value below AS field)), ...
///     WHERE field IS NOT that value OR ...
class UpdateFusion {
 public:
  /// `table` must outlive the fusion.
  explicit UpdateFusion(const TableDef& table) : table_(table), layers_(1) {}

  /// The next statement; it must be an UPDATE of the table. Nothing of it is kept.
  void Append(const Update& update, const Scope& scope);

  ChangeStatement Statement() const;

 private:
  using Fields = std::vector<const FieldDef*>;
  struct Setting {
    std::string cases;      ///< " WHEN condition THEN value", the last statement first
    std::string otherwise;  ///< the value when none holds; empty: the field stays
    Fields reads;
  };
  struct Layer {
    Fields reads;
    std::map<const FieldDef*, Setting> settings;
  };

  static std::string SqlOf(const Setting& setting, const std::string& name);
  std::string Share(const FieldDef& field, const std::string& test);
  Layer& LayerFor(const WrittenUpdate& update, bool has_shared_test);
  std::vector<Fields> NeededByLayer() const;
  std::string ColumnSql(const Layer& layer, const FieldDef& field) const;
  std::string LayersSql() const;
  ChangeStatement LayeredStatement() const;

  bool IsSetBelow(const FieldDef* field, std::size_t layer) const;
  bool IsSeparable() const;
  std::string ValueOf(const FieldDef& field) const;
  ChangeStatement SeparateStatement() const;

  const TableDef& table_;
  std::vector<std::string> tests_;  ///< the shared list tests
  Fields tested_;                   ///< the fields that they test
  std::vector<Layer> layers_;       ///< from the bottom
  Fields targets_;                  ///< the fields set, in the order of their first appearance
};

}  // namespace rbt::dialect

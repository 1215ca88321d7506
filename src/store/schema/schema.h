// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rbt {

/// A column's type: the Jet type's name is the declared type in the file.
enum class FieldType {
  boolean,    ///< BOOLEAN: 0 or -1
  byte,       ///< BYTE
  integer16,  ///< SHORT
  integer32,  ///< LONG
  single,     ///< SINGLE
  real,       ///< DOUBLE
  currency,   ///< CURRENCY
  date_time,  ///< DATETIME: days since 1899-12-30
  decimal,    ///< DECIMAL_TEXT(p,s)
  text,       ///< TEXT(n)
  memo,       ///< MEMO_TEXT
  guid,       ///< GUID_TEXT
  binary,     ///< BINARY_BLOB(n)
  ole,        ///< OLE_BLOB
};

/// The whole numbers that a type holds.
struct WholeRange {
  std::int64_t low;
  std::int64_t high;
};
/// Nothing for a type that is not of whole numbers; a BOOLEAN holds -1 and 0.
std::optional<WholeRange> WholeRangeOf(FieldType type);
/// A CURRENCY is at most this, up or down.
inline constexpr std::int64_t kLargestCurrency = 900'000'000'000;

struct FieldDef {
  std::string name;
  FieldType type = FieldType::integer32;
  int size =
      0;  ///< characters of a TEXT, bytes of a BINARY, precision of a DECIMAL; 0 where the type has none
  int scale = 0;            ///< of a DECIMAL
  bool required = false;    ///< refuses null
  bool autonumber = false;  ///< INTEGER PRIMARY KEY AUTOINCREMENT when it is the key, else COUNTER_LONG
  std::optional<std::string> default_value = std::nullopt;  ///< an SQL literal: 0, "" as ''

  friend bool operator==(const FieldDef&, const FieldDef&) = default;
};

struct IndexDef {
  std::string name;
  bool primary = false;
  bool unique = false;
  std::vector<std::string> fields;    ///< in key order
  std::vector<bool> descending = {};  ///< parallel to `fields`; empty: all ascending

  friend bool operator==(const IndexDef&, const IndexDef&) = default;
};

/// A table as it stands in the file.
struct TableDef {
  std::string name;
  std::vector<FieldDef> fields;
  std::vector<IndexDef> indexes;

  /// Finds by name, letter case and the width of ASCII letters and digits ignored; null when there is none.
  const FieldDef* FindField(std::string_view field_name) const;
  std::vector<std::string> FieldNames() const;

  friend bool operator==(const TableDef&, const TableDef&) = default;
};

/// True for the name of a table that the program keeps for itself in a file: statements reach it by its name,
/// lists of the file's tables leave it out.
inline bool IsInternalTable(std::string_view name) { return name.starts_with('~'); }

/// The declared type of a column, as it stands in CREATE TABLE: "TEXT(50)", "CURRENCY", ...
std::string DeclaredType(const FieldDef& field);
/// The field that a declared type describes; Jet's own words (long, Double, TEXT, COUNTER, ...) too. Nothing
/// when the word is unknown.
std::optional<FieldDef> FieldOfDeclaredType(std::string_view declared);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "jet/jet_file.h"
#include "store/schema/schema.h"

namespace rbt::jet {

/// The type byte of a column.
enum class ColumnType : std::uint8_t {
  boolean = 1,
  byte = 2,
  integer16 = 3,
  integer32 = 4,
  currency = 5,
  single = 6,
  real = 7,
  date_time = 8,
  binary = 9,
  text = 10,
  ole = 11,
  memo = 12,
  guid = 15,
  numeric = 16,
  opaque = 17,  ///< in tables of the engine's own; kept as bytes
};

struct Column {
  std::string name;
  ColumnType type = ColumnType::integer32;
  std::uint16_t number = 0;         ///< place in the null mask; numbers of deleted columns are not used again
  std::uint16_t ordinal = 0;        ///< of Jet 3: place among the fields
  std::uint16_t variable_slot = 0;  ///< place among the variable parts
  std::uint16_t fixed_offset = 0;   ///< from the start of the fixed part
  std::uint16_t length = 0;         ///< bytes; of a Jet 4 text two a character
  std::uint8_t precision = 0;       ///< of a numeric
  std::uint8_t scale = 0;
  bool fixed = false;
  bool nullable = true;
  bool autonumber = false;
  bool compressed = false;  ///< Jet 4 text may be stored with one byte a character

  /// As a field of the store: characters for a text, bytes for a binary, digits for a numeric.
  FieldDef ToField(JetVersion version) const;
};

struct IndexColumn {
  std::uint16_t number = 0;  ///< of the column
  bool descending = false;
};

/// The B-tree behind one or more indexes.
struct PhysicalIndex {
  std::vector<IndexColumn> columns;
  std::uint32_t root = 0;
  RowPointer usage;
  std::uint32_t entries = 0;  ///< number of unique entries as the definition tells, a hint
  bool unique = false;
  bool ignores_null = false;
  bool required = false;
};

/// An index by its name; several may share one B-tree.
struct Index {
  enum class Kind : std::uint8_t { plain = 0, primary = 1, relationship = 2 };
  std::string name;
  std::uint32_t physical = 0;
  Kind kind = Kind::plain;
};

/// The pages that hold the long values of one column.
struct LongValueMap {
  std::uint16_t column = 0;  ///< its number
  RowPointer owned_pages;
  RowPointer free_pages;
};

struct TableDefinition {
  std::string name;  ///< filled by the catalog
  std::uint32_t page = 0;
  bool system = false;
  std::uint32_t row_count = 0;
  std::uint32_t last_autonumber = 0;
  std::uint16_t variable_columns = 0;
  std::vector<Column> columns;  ///< in the order of the fields
  std::vector<PhysicalIndex> physical_indexes;
  std::vector<Index> indexes;
  std::vector<LongValueMap> long_value_maps;
  RowPointer owned_pages;
  RowPointer free_pages;
  std::vector<std::uint32_t> definition_pages;

  const Column* Find(std::string_view name) const;
  const Column* FindNumber(std::uint16_t number) const;
};

/// Reads the definition that starts on a page; it may run over several. Damage throws `Fault` of kind `file`.
TableDefinition ReadTableDefinition(JetFile& file, std::uint32_t page);

}  // namespace rbt::jet

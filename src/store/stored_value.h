// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <sqlite3.h>

#include "platform/numbers/value.h"
#include "store/schema/schema.h"

namespace rbt {

/// Where a value stands, for faults: "table.field".
struct FieldPlace {
  std::string_view table;
  std::string_view field;

  std::string Text() const;
};

/// The value in a column of the current row by its declared type, also where another program stored it in
/// another form: a whole number for a DOUBLE, 5.0 or the text "12" for a LONG (halves round to even). A text
/// or bytes that are no number of a numeric field throw `type mismatch`. Without a field: as the file holds
/// it.
Value ReadStored(sqlite3_stmt* row, int column, const FieldDef* field, const FieldPlace& place);
/// The number in a column, nothing when null; a text goes through `NumberOfText`.
std::optional<double> ReadDouble(sqlite3_stmt* row, int column, const FieldPlace& place);
/// As `ReadDouble`, rounded halves to even; beyond 32 bits `overflow`.
std::optional<std::int32_t> ReadInt32(sqlite3_stmt* row, int column, const FieldPlace& place);
/// Both of a value that a statement hands to a function.
std::optional<double> ReadDouble(sqlite3_value* value, const FieldPlace& place);
std::optional<std::int32_t> ReadInt32(sqlite3_value* value, const FieldPlace& place);
/// Beyond 32 bits `overflow`.
std::int32_t NarrowInt32(std::int64_t whole, const FieldPlace& place);
/// The text in a column, numbers in their shortest form, nothing when null.
std::optional<std::string> ReadText(sqlite3_stmt* row, int column, const FieldPlace& place);

/// The value as the field takes it: whole numbers rounded halves to even and checked against the type's
/// range (`overflow`), Currency rounded to four places and at most 9 x 10^11 in absolute value (`overflow`),
/// BOOLEAN 0 or -1, a text no longer than the field (`database`), null only where it may stand (`invalid use
/// of null`).
Value CheckedForField(const FieldDef& field, const Value& value, const FieldPlace& place);

/// True when storing a checked value would leave the column as it is.
bool SameAsStored(sqlite3_stmt* row, int column, const Value& value);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "platform/numbers/currency.h"

namespace rbt {

/// Mask of weights and counts in table cells, and the one that shows nothing for zero.
inline constexpr std::string_view kCellMask = "#,##0";
inline constexpr std::string_view kBlankZeroMask = "#,###";
inline constexpr std::string_view kRateMask = "0.00";
inline constexpr std::string_view kTonnesMask = "##### t ##0 Kg";
inline constexpr std::string_view kKilogramsMask = "##0 Kg";

/// How a number stands in a column: its rightmost `characters` by the mask with blanks in front, and the
/// suffix behind them. The font has a fixed pitch, so that numbers of one field end below each other.
struct NumberField {
  std::size_t characters = 0;
  std::string_view mask = kCellMask;
  std::string_view suffix = {};
};

/// What a cell shows: nothing, a number in the column's field, or a text as it stands. A text without
/// characters is printed too.
using CellValue = std::variant<std::monostate, std::int64_t, double, Currency, std::string>;

/// The number by the field's mask, whole; the text of a text; "" for nothing.
std::string WholeText(const NumberField& field, const CellValue& value);
/// The value as it stands in its field: a number too wide for it has lost its first characters.
std::string FieldText(const NumberField& field, const CellValue& value);
bool IsTooWide(const NumberField& field, const CellValue& value);

/// The field of a total weight in kilograms, 14 characters: tonnes and the rest from 1000 on, kilograms
/// below.
NumberField TotalWeightField(double kilograms, std::string_view tonnes_mask = kTonnesMask);

}  // namespace rbt

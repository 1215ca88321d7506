// SPDX-License-Identifier: MIT
#include "reports/frame/number_field.h"

#include <type_traits>

#include "platform/numbers/number_mask.h"
#include "platform/text/characters.h"
#include "reports/frame/report_text.h"

namespace rbt {

namespace {

bool IsNumber(const CellValue& value) {
  return !std::holds_alternative<std::monostate>(value) && !std::holds_alternative<std::string>(value);
}

}  // namespace

std::string WholeText(const NumberField& field, const CellValue& value) {
  return std::visit(
      [&](const auto& held) -> std::string {
        using Held = std::decay_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, std::monostate>) {
          return {};
        } else if constexpr (std::is_same_v<Held, std::string>) {
          return held;
        } else {
          return FormatNumber(held, field.mask);
        }
      },
      value);
}

std::string FieldText(const NumberField& field, const CellValue& value) {
  std::string whole = WholeText(field, value);
  if (!IsNumber(value)) return whole;
  return RightAligned(whole, field.characters).append(field.suffix);
}

bool IsTooWide(const NumberField& field, const CellValue& value) {
  return IsNumber(value) && CharacterCount(WholeText(field, value)) > field.characters;
}

NumberField TotalWeightField(double kilograms, std::string_view tonnes_mask) {
  constexpr std::size_t kCharacters = 14;
  constexpr double kTonne = 1000.0;
  return {kCharacters, kilograms < kTonne ? kKilogramsMask : tonnes_mask};
}

}  // namespace rbt

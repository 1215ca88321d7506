// SPDX-License-Identifier: MIT
#include "tally/floorpart/part_statement.h"

#include <fmt/format.h>

#include "tally/floorpart/floor_statement.h"
#include "tally/mask_text.h"

namespace rbt {
namespace {

/// They close the parenthesis that the range of storeys leaves open.
constexpr MaskText<SpecialMask> kPartSpecialClauses[] = {
    {1, "OR 階 = 76) "},
    {2, "OR 階 = 77) "},
    {3, "OR (階 = 76 OR 階 = 77)) "},
    {4, "OR 階 = 78) "},
    {5, "OR (階 = 76 OR 階 = 78)) "},
    {6, "OR (階 = 77 OR 階 = 78)) "},
    {7, "OR (階 = 76 OR 階 = 77 OR 階 = 78)) "},
};

}  // namespace

std::string PartFloorClause(const PartScope& scope) {
  const auto [start, end, asked_from_0, specials] = scope;
  if (IsSpecialFloor(start)) return fmt::format("WHERE (階 = {})", start);
  if (specials.IsNone()) {
    return asked_from_0 ? fmt::format("WHERE (階=0 OR 階 >= {} AND 階 <= {}) ", start, end)
                        : fmt::format("WHERE (階 >= {} AND 階 <= {} AND 階<>0) ", start, end);
  }
  const std::string storeys = asked_from_0
                                  ? fmt::format("WHERE (階=0 OR (階 >= {} AND 階 <= {}) ", start, end)
                                  : fmt::format("WHERE ((階 >= {} AND 階 <= {} AND 階<>0) ", start, end);
  return storeys + std::string(TextOfMask(kPartSpecialClauses, specials));
}

std::string_view PartKindClause(KindMask kinds) {
  constexpr KindMask high_strength_alone = KindMask::Of({MaterialKind::high_strength});
  return kinds == high_strength_alone ? " AND (予備2=3)" : FloorKindClause(kinds);
}

std::string PartStatementSoFar(const PartScope& scope, FormMask forms, KindMask kinds) {
  return fmt::format(
      "SELECT * FROM 加工テーブル {}AND (太さ is not NULL AND 伸定尺 is not NULL AND 本数 is not NULL){}{}",
      PartFloorClause(scope), FloorFormClause(forms), PartKindClause(kinds));
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "tally/floorpart/floor_statement.h"

#include <vector>

#include <fmt/format.h>

#include "tally/mask_text.h"

namespace rbt {
namespace {

constexpr MaskText<KindMask> kKindClauses[] = {
    {0, " AND 予備2=2"},
    {1, " AND (予備2<=1 or IsNull(予備2))"},
    {2, " AND 予備2=4"},
    {3, " AND (予備2<=1 or IsNull(予備2) or 予備2=4)"},
    {4, " AND 予備2=3"},
    {5, " AND (予備2<=1 or IsNull(予備2) or 予備2=3)"},
    {6, " AND (予備2=3 or 予備2=4)"},
    {7, " AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=4)"},
    {8, " AND 予備2=5"},
    {9, " AND (予備2<=1 or IsNull(予備2) or 予備2=5)"},
    {10, " AND (予備2=4 or 予備2=5)"},
    {11, " AND (予備2<=1 or IsNull(予備2) or 予備2=4 or 予備2=5)"},
    {12, " AND (予備2=3 or 予備2=5)"},
    {13, " AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=5)"},
    {14, " AND (予備2=3 or 予備2=4 or 予備2=5)"},
    {15, " AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=4 or 予備2=5)"},
};

constexpr MaskText<SpecialMask> kSpecialClauses[] = {
    {1, "OR 階 = 76 "},
    {2, "OR 階 = 77 "},
    {3, "OR (階 = 76 OR 階 = 77) "},
    {4, "OR 階 = 78 "},
    {5, "OR (階 = 76 OR 階 = 78) "},
    {6, "OR (階 = 77 OR 階 = 78) "},
    {7, "OR (階 = 76 OR 階 = 77 OR 階 = 78) "},
};

std::string SpecialStart(const FloorScope& scope) {
  if (scope.start == scope.end || scope.start == kNoFloor)
    return fmt::format("WHERE (((階 = {})", scope.start);
  return fmt::format("WHERE (((階 >= {} and 階 <= {}) ", scope.start, scope.end);
}

std::string StoreyStart(const FloorScope& scope) {
  if (scope.start < kFoundationFloor) {
    return fmt::format("WHERE (((階 >= {} AND 階 <= {} AND 階<>0) ", scope.start, scope.end);
  }
  if (scope.start > kFoundationFloor) {
    return fmt::format("WHERE (((階 >= {} AND 階 <= {}) ", scope.start, scope.end);
  }
  if (scope.end == kFoundationFloor) return "WHERE  ((階=0 ";
  return fmt::format("WHERE (((階 >= {} AND 階 <= {}) OR 階=0 ", scope.lowest, scope.end);
}

}  // namespace

std::string FloorFormClause(FormMask forms) {
  if (forms.IsNone() || forms.IsAll()) return " ";
  std::vector<std::string> conditions;
  for (const MaterialForm form : kMaskedForms) {
    if (forms.Has(form)) conditions.push_back(fmt::format("予備3 = {}", static_cast<int>(form)));
  }
  return fmt::format(" AND ({})", fmt::join(conditions, " OR "));
}

std::string_view FloorKindClause(KindMask kinds) { return TextOfMask(kKindClauses, kinds); }

std::string FloorClause(const FloorScope& scope) {
  if (IsSpecialFloor(scope.start)) return SpecialStart(scope);
  return StoreyStart(scope).append(TextOfMask(kSpecialClauses, scope.specials));
}

std::string FloorStatementSoFar(const FloorScope& scope, FormMask forms, KindMask kinds) {
  return fmt::format(
      "SELECT * FROM 加工テーブル {}) AND (太さ Is Not Null AND 伸定尺 Is Not Null AND 本数 Is Not "
      "Null){}){}",
      FloorClause(scope), FloorFormClause(forms), FloorKindClause(kinds));
}

}  // namespace rbt

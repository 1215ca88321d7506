// SPDX-License-Identifier: MIT
#include "tally/clauses.h"

#include "data/shapes.h"
#include "tally/mask_text.h"

namespace rbt {
namespace {

constexpr MaskText<FormMask> kFormClauses[] = {
    {1, " AND 予備3 = 1"},
    {2, " AND 予備3 = 2"},
    {3, " AND (予備3 = 1 OR 予備3 = 2)"},
    {4, " AND 予備3 = 3"},
    {5, " AND (予備3 = 1 OR 予備3 = 3)"},
    {6, " AND (予備3 = 2 OR 予備3 = 3)"},
    {7, " AND (予備3 = 1 OR 予備3 = 2 OR 予備3 = 3)"},
    {8, " AND (予備3 = 4)"},
    {9, " AND (予備3 = 1 OR 予備3 = 4)"},
    {10, " AND (予備3 = 2 OR 予備3 = 4)"},
    {11, " AND (予備3 = 1 OR 予備3 = 2 OR 予備3 = 4)"},
    {12, " AND (予備3 = 3 OR 予備3 = 4)"},
    {13, " AND (予備3 = 1 OR 予備3 = 3 OR 予備3 = 4)"},
    {14, " AND (予備3 = 2 OR 予備3 = 3 OR 予備3 = 4)"},
};

// Every kind keeps the Ulbon rows, which the tally itself takes or leaves. The 2 of mask 8 stands outside the
// parenthesis, so that it leaves every condition before it: Ulbon rows come in whatever the range or the
// form.
constexpr MaskText<KindMask> kKindClauses[] = {
    {1, " AND (予備2<=1 or IsNull(予備2) or 予備2=2)"},
    {2, " AND (予備2=4 or 予備2=2)"},
    {3, " AND (予備2<=1 or 予備2=4 or IsNull(予備2) or 予備2=2)"},
    {4, " AND (予備2=3 or 予備2=2)"},
    {5, " AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=2)"},
    {6, " AND (予備2=3 or 予備2=4 or 予備2=2)"},
    {7, " AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=4 or 予備2=2)"},
    {8, " AND (予備2=5) or 予備2=2"},
    {9, " AND (予備2<=1 or IsNull(予備2) or 予備2=5 or 予備2=2)"},
    {10, " AND (予備2=4 or 予備2=5 or 予備2=2)"},
    {11, " AND (予備2<=1 or IsNull(予備2) or 予備2=4 or 予備2=5 or 予備2=2)"},
    {12, " AND (予備2=3 or 予備2=5 or 予備2=2)"},
    {13, " AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=5 or 予備2=2)"},
    {14, " AND (予備2=3 or 予備2=4 or 予備2=5 or 予備2=2)"},
};

}  // namespace

std::string_view AnchorPlateClause(ShapeFilter plates) {
  switch (plates) {
    case ShapeFilter::left_out:
      return kNoAnchorPlateClause;
    case ShapeFilter::alone:
      return kAnchorPlateClause;
    case ShapeFilter::with_others:
      break;
  }
  return "";
}

std::string_view HoopClause(ShapeFilter hoops) {
  switch (hoops) {
    case ShapeFilter::left_out:
      return " AND 形状No<>87 ";
    case ShapeFilter::alone:
      return " AND 形状No=87 ";
    case ShapeFilter::with_others:
      break;
  }
  return "";
}

std::string_view FormClause(FormMask forms) { return TextOfMask(kFormClauses, forms); }

std::string_view KindClause(KindMask kinds) { return TextOfMask(kKindClauses, kinds); }

}  // namespace rbt

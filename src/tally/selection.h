// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "data/calc_choice.h"
#include "data/form_mask.h"
#include "data/kind_mask.h"
#include "data/shape_filter.h"
#include "data/start_mode.h"

namespace rbt {

/// What the user picked; outlives a form and is read by every tally.
struct SelectionData {
  StartModeTraits StartMode = TraitsOfStartMode(kNoStartMode);  ///< of the first number of the command line
  std::int32_t TallyKind = 0;  ///< 0 bulk, 1 shape, 2 page, 3 shape by page, 4 floor, 5 part
  KindMask MaterialKindMask = kAllKinds;
  KindMask PrevMaterialKindMask = kAllKinds;  ///< the mask before the last change
  bool IncludeUlbon = true;                   ///< Ulbon rows are tallied
  bool UlbonOnly = false;                     ///< Ulbon alone in the floor and part tallies
  FormMask MaterialFormMask = kAllForms;
  CalcChoice MaterialCalcChoice = CalcChoice::high_strength_with_others;
  ShapeFilter HoopMode = ShapeFilter::with_others;         ///< of shape 87
  ShapeFilter AnchorPlateMode = ShapeFilter::with_others;  ///< of the anchor-plate shapes
  std::int32_t ShapeStart = 0;                             ///< first and last 形状No of the shape tally
  std::int32_t ShapeEnd = 0;
  std::int16_t StartPage = 0;  ///< first and last 頁 and 行 of the page tallies
  std::int16_t StartLine = 0;
  std::int16_t EndPage = 0;
  std::int16_t EndLine = 0;
};

extern SelectionData Selection;

/// After a change of the kind mask from `PrevMaterialKindMask`: a filter that shows nothing but shapes which
/// the new kinds do not have goes back to showing them with others.
void ResetMeaninglessModes(SelectionData& selection);

}  // namespace rbt

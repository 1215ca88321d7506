// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "data/form_mask.h"
#include "data/kind_mask.h"
#include "data/start_mode.h"

namespace rbt {

/// What the user picked; outlives a form and is read by every tally.
struct SelectionData {
  StartModeTraits StartMode = TraitsOfStartMode(kNoStartMode);  ///< of the first number of the command line
  std::int32_t TallyKind = 0;  ///< 0 bulk, 1 shape, 2 page, 3 shape by page, 4 floor, 5 part
  KindMask MaterialKindMask = kAllKinds;
  KindMask PrevMaterialKindMask = kAllKinds;  ///< the mask before the last change
  std::int32_t IncludeUlbon = 1;              ///< 1: Ulbon rows are tallied
  std::int16_t UlbonOnly = 0;                 ///< 1: Ulbon alone in the floor and part tallies
  FormMask MaterialFormMask = kAllForms;
  std::int16_t MaterialCalcChoice = 2;  ///< 0 no 高強度 in the mask, 1 高強度 alone, 2 高強度 with others
  std::int32_t HoopMode = 0;            ///< shape 87: 0 included, 1 left out, 2 only
  std::int32_t AnchorPlateMode = 0;  ///< anchor-plate shapes: 0 included, 1 left out, 2 only
  std::int32_t ShapeStart = 0;       ///< first and last 形状No of the shape tally
  std::int32_t ShapeEnd = 0;
  std::int16_t StartPage = 0;  ///< first and last 頁 and 行 of the page tallies
  std::int16_t StartLine = 0;
  std::int16_t EndPage = 0;
  std::int16_t EndLine = 0;
};

extern SelectionData Selection;

/// After a change of the kind mask from `PrevMaterialKindMask`: a mode that shows nothing but shapes which
/// the new kinds do not have goes back to 0.
void ResetMeaninglessModes(SelectionData& selection);

}  // namespace rbt

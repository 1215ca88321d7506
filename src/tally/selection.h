// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "data/calc_choice.h"
#include "data/floor_mask.h"
#include "data/form_mask.h"
#include "data/kind_mask.h"
#include "data/shape_filter.h"
#include "data/start_mode.h"
#include "tally/tally_kind.h"

namespace rbt {

/// What the user picked; outlives a form and is read by every tally.
struct SelectionData {
  StartModeTraits StartMode = TraitsOfStartMode(kNoStartMode);  ///< of the first number of the command line
  rbt::TallyKind TallyKind = rbt::TallyKind::bulk;              ///< the menu's last choice
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
  std::int32_t StartPage = 0;  ///< first and last 頁 and 行 of the page tallies
  std::int32_t StartLine = 0;
  std::int32_t EndPage = 0;
  std::int32_t EndLine = 0;
  std::int16_t KaiStart = 0;  ///< first and last 階 of the floor and part tallies, as the boxes hold them
  std::int16_t KaiEnd = 0;
  std::int16_t KaiMin = 0;      ///< lowest 階 of the schedule: where a floor tally from 0 begins
  std::int16_t BuiStart = 0;    ///< where the part tally begins
  SpecialMask TokubetuMask;     ///< special floors taken beside a range of storeys
  double UwanoseRitu = 0.0;     ///< uplift of the floor tally as a ratio: 0.1 for 10 percent
  double BuiUwanoseRitu = 0.0;  ///< the same of the part tally

  friend bool operator==(const SelectionData&, const SelectionData&) = default;
};

extern SelectionData Selection;

/// After a change of the kind mask from `PrevMaterialKindMask`: a filter that shows nothing but shapes which
/// the new kinds do not have goes back to showing them with others.
void ResetMeaninglessModes(SelectionData& selection);

}  // namespace rbt

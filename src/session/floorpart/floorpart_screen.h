// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "session/floorpart/floor_questions.h"
#include "session/floorpart/floorpart_columns.h"
#include "session/floorpart/floorpart_order.h"
#include "session/panels/views.h"
#include "tally/selection.h"
#include "tally/tally_kind.h"

namespace rbt {

/// What the print buttons print.
enum class FloorPartSheet {
  floor_range,   ///< all floors by diameter and stock length
  each_floor,    ///< the same of one floor after the other
  floor_totals,  ///< the floors by part
  floor_blocks,  ///< the floors by part and diameter
  all_parts,     ///< all parts on one page
  each_part,     ///< one part after the other by diameter and stock length
  part_totals,   ///< the diameters by part
};

/// What tells the floor screen and the part screen apart.
struct FloorPartScreen {
  std::string_view name;  ///< object name of the form
  std::string_view title;
  TallyKind kind = TallyKind::floor;
  bool chooses_weight = false;    ///< stock or installed, setting 階別集計定取
  bool starts_from_all = false;   ///< each run of a range takes hoops, plates and kinds back to all
  SpecialTitles question_titles;  ///< of the special floors
  double SelectionData::*uplift;  ///< ratio
  std::vector<FloorPartColumn> (*columns)(const PartNames& names, bool striped);
  std::span<const FloorPartSheet> sheets;     ///< those of the print buttons, in their order
  std::span<const ControlText> captions;      ///< where they differ from the layout's
  std::span<const ControlText> names;         ///< object names, likewise, one after the other
  std::span<const std::string_view> without;  ///< controls of the layout that the screen lacks
};

extern const FloorPartScreen kFloorScreen;  ///< KAIJS
extern const FloorPartScreen kPartScreen;   ///< BUIJS

/// What a screen of floors or parts leans on beside the tally.
struct FloorPartParts {
  std::function<void()> choose_kinds;  ///< the dialog of material kinds or Ulbon alone, on the selection
  std::function<void()> choose_forms;  ///< the dialog of material forms
  std::function<void(const FloorPartOrder& order)> print;
};

}  // namespace rbt

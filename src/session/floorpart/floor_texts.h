// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "data/floor_mask.h"
#include "data/form_mask.h"
#include "data/kind_mask.h"
#include "session/floorpart/floor_input.h"
#include "tally/floorpart/floor_range.h"

namespace rbt {

/// What stands above the boxes of a range: which floors the schedule has.
std::string FloorsOfSchedule(const FloorExtent& extent);

/// What a range is called before it is tallied, by the texts of its boxes.
std::string AskedScope(const FloorInput::Texts& boxes);
/// ... and after: by the special floors that were taken beside it, or as the one special floor that it is.
std::string TalliedScope(const FloorInput::Texts& boxes, SpecialMask taken);

/// "異形･ネジ"; "ウルボン" for no kind, which is how the floor and part tallies take Ulbon alone.
std::string_view FloorPartKindCaption(KindMask kinds);
/// How the forms are told after a run of the range; `ShortFormCaption` after a choice.
std::string_view FloorPartFormCaption(FormMask forms);

}  // namespace rbt

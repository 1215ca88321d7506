// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "data/floor_mask.h"
#include "store/database.h"
#include "tally/selection.h"

namespace rbt {

/// A first and a last floor as the user gives them, as floor codes.
struct FloorRange {
  std::int16_t start = 0;
  std::int16_t end = 0;

  friend bool operator==(const FloorRange&, const FloorRange&) = default;
};

/// Which floors a schedule has. Special floors widen the range only where there are no others.
struct FloorExtent {
  std::int16_t KaiMin = 0;
  std::int16_t KaiMax = 0;
  bool has_foundation = false;  ///< rows of 階 0 exist

  /// The foundation or basements exist.
  bool KaiFound() const { return has_foundation || KaiMin < 0; }

  friend bool operator==(const FloorExtent&, const FloorExtent&) = default;
};

/// Nothing when no row stands on a floor from -5 to 78.
std::optional<FloorExtent> ReadFloorExtent(Database& site);

/// What the button for all floors enters.
FloorRange AllFloors(const FloorExtent& extent);

/// Where a part tally starts: at the lowest floor when 0 is asked for and there is a foundation or a
/// basement, at 0 for the foundation alone.
std::int16_t PartStart(const FloorRange& asked, const FloorExtent& extent);

/// Why a range cannot be tallied.
struct FloorRangeRefusal {
  bool at_start = false;  ///< the first floor is at fault, else the last
  std::string_view reason;
};

/// Nothing for a first floor that may stand by itself.
std::optional<FloorRangeRefusal> RefusedStart(std::int16_t start, const FloorExtent& extent);
/// Nothing for a range that may be tallied; what `AllFloors` enters always may.
std::optional<FloorRangeRefusal> RefusedRange(const FloorRange& range, const FloorExtent& extent);

/// Puts floors into the selection, and where the tallies begin.
void TakeFloors(SelectionData& selection, const FloorRange& range, SpecialMask specials,
                const FloorExtent& extent);

}  // namespace rbt

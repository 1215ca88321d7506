// SPDX-License-Identifier: MIT
#include "session/floorpart/floor_input.h"

#include <cmath>
#include <limits>

#include "data/floor_mask.h"
#include "platform/numbers/number_words.h"

namespace rbt {

void FloorInput::Fill(const FloorRange& range) {
  texts_ = {std::to_string(range.start), std::to_string(range.end)};
}

double FloorInput::Number(std::size_t box) const { return LeadingNumber(texts_.at(box)); }

std::optional<std::int16_t> FloorInput::Floor(std::size_t box) const {
  const double number = Number(box);
  // Beyond 16 bits it is as little a floor as 79 is.
  const bool fits = std::abs(number) <= std::numeric_limits<std::int16_t>::max();
  if (IsEmpty(box) || !fits) return std::nullopt;
  return ToInt16(number, "階");
}

bool FloorInput::StartPasses() const {
  const std::optional<std::int16_t> floor = Floor(kStart);
  if (!floor || RefusedStart(*floor, extent_)) return false;
  const double number = Number(kStart);
  if (!extent_.KaiFound()) return number >= Round(number);
  return IsSpecialFloor(*floor) || (number >= extent_.KaiMin && number <= extent_.KaiMax);
}

bool FloorInput::StartIsSpecial() const {
  const std::optional<std::int16_t> floor = Floor(kStart);
  return floor && IsSpecialFloor(*floor);
}

std::optional<FloorRange> FloorInput::Range() const {
  const std::optional<std::int16_t> start = Floor(kStart);
  const std::optional<std::int16_t> end = Floor(kEnd);
  if (!start || !end) return std::nullopt;
  const FloorRange range{*start, *end};
  if (range == AllFloors(extent_) && Number(kStart) == range.start) return range;
  if (!StartPasses() || RefusedRange(range, extent_)) return std::nullopt;
  return range;
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "demo/schedule_generator.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "data/diameters.h"
#include "demo/shapes.h"
#include "demo/stock_choice.h"

namespace rbt::demo {

namespace {

constexpr std::int32_t kLinesPerPage = 20;
constexpr std::int32_t kParts = 11;
constexpr std::int32_t kColumnPart = 2;
constexpr std::int32_t kWeldedHoopShape = 87;
/// Shear bars of 16 mm are thin high-strength bars only when marked so.
constexpr std::int32_t kMarkedThinDiameter = 16;

std::int32_t Round10(double mm) { return static_cast<std::int32_t>(std::lround(mm / 10.0)) * 10; }

/// The dimensions of a bent bar that develops to `cut_mm`; bends take what is left over.
std::array<std::int32_t, 10> DimensionsOf(Outline outline, std::int32_t cut_mm, std::int32_t leg_percent) {
  const std::int32_t leg = std::max(Round10(cut_mm * leg_percent / 100.0), 50);
  switch (outline) {
    case Outline::straight:
      return {cut_mm};
    case Outline::one_leg:
      return {leg, cut_mm - leg};
    case Outline::two_legs:
      return {leg, std::max(cut_mm - 2 * leg, 50), leg};
    case Outline::closed: {
      // A tenth of the length goes into the hooks or the lap.
      const std::int32_t half = Round10(cut_mm * 0.45);
      const std::int32_t side = Round10(half * (30.0 + leg_percent) / 100.0);
      return {side, half - side};
    }
    case Outline::round:
      return {Round10(cut_mm * 0.9 / 3.14)};
    case Outline::four_sides:
      return {leg, Round10(cut_mm * 0.25), leg, std::max(cut_mm - 2 * leg - Round10(cut_mm * 0.25), 50)};
  }
  return {};
}

std::int32_t NextThicker(std::int32_t diameter) {
  for (const Diameter& thicker : kDeformedDiameters) {
    if (thicker.code > diameter) return thicker.code;
  }
  return diameter;
}

}  // namespace

ScheduleGenerator::ScheduleGenerator(std::int32_t rows, std::int32_t registered_names, std::uint64_t seed)
    : random_(seed), rows_(rows), registered_names_(registered_names) {
  PlanBlocks();
}

void ScheduleGenerator::PlanBlocks() {
  std::vector<std::int64_t> weight_so_far;
  std::int64_t sum = 0;
  for (const Storey& storey : Storeys()) {
    for (std::int32_t part = 1; part <= kParts; ++part) {
      Block block{&storey, {}, 0, 0};
      for (const BarPattern& pattern : BarPatterns()) {
        if (pattern.part != part || (pattern.zones & storey.zone) == 0) continue;
        block.patterns.push_back(&pattern);
        block.pattern_weight += pattern.weight;
      }
      if (block.patterns.empty()) continue;
      sum += static_cast<std::int64_t>(storey.weight) * block.pattern_weight;
      weight_so_far.push_back(sum);
      blocks_.push_back(std::move(block));
    }
  }
  // Shares are cut off the running sum, so that the lines come to exactly `rows_`.
  for (std::size_t i = 0; i < blocks_.size(); ++i) {
    blocks_[i].last_row = static_cast<std::int32_t>(rows_ * weight_so_far[i] / weight_so_far.back());
  }
}

void ScheduleGenerator::TurnPage() {
  const bool new_block = number_ == blocks_[block_].last_row;
  while (number_ == blocks_[block_].last_row) ++block_;
  if (page_ == 0 || new_block || line_ == kLinesPerPage) {
    ++page_;
    line_ = 0;
  }
}

const BarPattern& ScheduleGenerator::PickPattern(const Block& block) {
  std::int32_t ticket = random_.Between(1, block.pattern_weight);
  for (const BarPattern* pattern : block.patterns) {
    ticket -= pattern->weight;
    if (ticket <= 0) return *pattern;
  }
  return *block.patterns.back();
}

std::int32_t ScheduleGenerator::PickDiameter(const BarPattern& pattern, double height) {
  const auto last = static_cast<int>(pattern.diameters.size()) - 1;
  const int by_load = static_cast<int>(std::lround((1.0 - height) * last));
  const int index = std::clamp(by_load + random_.Between(-1, 1), 0, last);
  return pattern.diameters[static_cast<std::size_t>(index)];
}

void ScheduleGenerator::Cut(ScheduleRow& row, const BarPattern& pattern) {
  const auto [low, high] = pattern.cut_mm;
  if (high >= 3500 && random_.Chance(pattern.stock_cut_percent)) {
    const std::int32_t first = (std::max(low, 3500) + 499) / 500 * 500;
    row.cut_mm = random_.Step(first, std::min(high, 12000) / 500 * 500, 500);
  } else {
    row.cut_mm = random_.Step(low, high, random_.Chance(60) ? 50 : 10);
  }
  row.dimensions = DimensionsOf(ShapeOf(row.shape).outline, row.cut_mm, random_.Between(6, 24));
  row.bars = random_.Between(pattern.bars.low, pattern.bars.high);
  row.places = random_.Between(pattern.places.low, pattern.places.high);
  row.total = row.bars * row.places;
  const StockChoice stock = ChooseStock(row.diameter, row.cut_mm, row.total);
  row.stock_m = stock.stock_m;
  row.pieces_per_bar = stock.pieces_per_bar;
  row.stock_bars = stock.stock_bars;
}

void ScheduleGenerator::Join(ScheduleRow& row, const BarPattern& pattern, double height) {
  const Shape& shape = ShapeOf(row.shape);
  row.threads = shape.thread_ends * row.total;
  const bool closed =
      pattern.joint == Joint::closed || (pattern.steel == Steel::thin && row.shape == kWeldedHoopShape);
  if (closed) row.welds = row.total;
  if (pattern.joint == Joint::weld && row.diameter >= 19 && random_.Chance(75)) {
    row.welds = row.total;
    // Where the column or beam grows thinner towards the top the bar meets the thicker one below.
    const bool steps = height > 0.1 && random_.Chance(pattern.part == kColumnPart ? 22 : 6);
    if (steps) row.weld_diameter = NextThicker(row.diameter);
    // The sheared end is sawn square before it is welded.
    row.cuts = row.total;
  } else if (row.diameter >= 29 && pattern.steel != Steel::thin) {
    // Too thick for the shear: every piece that is no whole stock bar is sawn.
    const bool whole = std::lround(row.stock_m * 1000.0) == row.cut_mm;
    row.cuts = whole ? 0 : row.total;
  }
}

void ScheduleGenerator::MarkKind(ScheduleRow& row, const BarPattern& pattern, double height) {
  if (pattern.steel == Steel::thin) {
    if (row.diameter == kMarkedThinDiameter) row.kind = 2;
  } else if (row.shape > 200) {
    row.kind = 4;
  } else if (pattern.steel == Steel::strong_below && row.diameter >= 29 && height <= 0.5 &&
             random_.Chance(45)) {
    row.kind = 3;
  } else if (random_.Chance(25)) {
    row.kind = 0;
  }
}

void ScheduleGenerator::Place(ScheduleRow& row, const Block& block, const BarPattern& pattern) {
  row.floor = block.storey->floor;
  row.part = pattern.part;
  if (block.storey->zone == kNoFloorZone && random_.Chance(20)) {
    row.floor.reset();
    if (random_.Chance(50)) row.part.reset();
  }
  if (registered_names_ > 0 && block.storey->zone != kNoFloorZone) {
    const auto storey = static_cast<std::int32_t>(block.storey - Storeys().data());
    row.registered_name = storey % registered_names_ + 1;
  } else if (random_.Chance(50)) {
    row.registered_name = 0;
  }
}

ScheduleRow ScheduleGenerator::Next() {
  TurnPage();
  const Block& block = blocks_[block_];
  const BarPattern& pattern = PickPattern(block);
  const double height = block.storey->height;
  ScheduleRow row;
  row.number = ++number_;
  row.page = page_;
  row.line = ++line_;
  row.name = pattern.name;
  row.diameter = PickDiameter(pattern, height);
  row.shape = random_.Pick(pattern.shapes);
  Cut(row, pattern);
  Join(row, pattern, height);
  MarkKind(row, pattern, height);
  Place(row, block, pattern);
  return row;
}

}  // namespace rbt::demo

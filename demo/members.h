// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace rbt::demo {

/// Where in the building a bar stands; bits.
enum Zone : unsigned {
  kFoundationZone = 1,
  kBasementZone = 2,
  kStoreyZone = 4,
  kRoofZone = 8,
  kPenthouseZone = 16,
  kNoFloorZone = 32,
};

/// How the bars of a line are continued or closed.
enum class Joint {
  none,
  weld,    ///< one gas pressure weld a bar, on most lines; at a step in diameter it counts at the thicker
  closed,  ///< one weld closes each hoop
};

/// What steel the bars are of.
enum class Steel {
  plain,
  strong_below,  ///< high-strength steel on some lines of the lower storeys
  thin,          ///< thin high-strength shear bar: U6 to U16
};

struct Range {
  std::int32_t low;
  std::int32_t high;
};

/// A kind of bar as it returns line after line in the schedule of a building.
struct BarPattern {
  std::int32_t part;      ///< 部位
  std::string_view name;  ///< 名称
  unsigned zones;
  std::int32_t weight;  ///< share among the patterns of its part and zone
  /// Diameter codes from the top of the building to its foot: loads grow downwards.
  std::span<const std::int32_t> diameters;
  std::span<const std::int32_t> shapes;
  Range cut_mm;
  Range bars;
  Range places;
  std::int32_t stock_cut_percent = 0;  ///< lines whose cut length is a stock length: bars used whole
  Joint joint = Joint::none;
  Steel steel = Steel::plain;
};

std::span<const BarPattern> BarPatterns();

/// One storey of the building, from the ground up in the order of the work.
struct Storey {
  std::int32_t floor;  ///< 階
  Zone zone;
  std::int32_t weight;  ///< share of the schedule's lines
  double height;        ///< 0 at the foot of the building, 1 at its top
};

std::span<const Storey> Storeys();

}  // namespace rbt::demo

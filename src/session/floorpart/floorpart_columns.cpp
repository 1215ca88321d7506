// SPDX-License-Identifier: MIT
#include "session/floorpart/floorpart_columns.h"

#include <algorithm>
#include <array>
#include <span>

namespace rbt {

namespace {

constexpr std::array<int, 13> kFloorWidths{1100, 1200, 1100, 1100, 1100, 1100, 1100,
                                           1100, 1100, 1100, 1250, 1250, 1350};
constexpr std::array<int, 13> kPartWidths{700,  1200, 1200, 1200, 1200, 1200, 1200,
                                          1200, 1200, 1200, 1250, 1300, 1350};
constexpr int kRowNumberWidth = 1000;

/// Striped rows keep eight digits with their commas whole in these.
constexpr std::array<std::size_t, 2> kWiderColumns{6, 7};
constexpr int kWiderWidth = 1250;

std::vector<FloorPartColumn> Columns(const std::vector<std::string_view>& captions,
                                     std::span<const int> widths) {
  std::vector<FloorPartColumn> columns;
  columns.reserve(captions.size());
  for (std::size_t i = 0; i < captions.size(); ++i) {
    columns.push_back({.caption = std::string(captions[i]), .width = widths[i], .centred = i == 0});
  }
  return columns;
}

void Widen(std::vector<FloorPartColumn>& columns) {
  for (const std::size_t i : kWiderColumns) columns[i].width = std::max(columns[i].width, kWiderWidth);
}

}  // namespace

std::vector<FloorPartColumn> Set_dbgkai(const PartNames& names, bool striped) {
  std::vector<FloorPartColumn> columns = Columns(FloorCaptions(names), kFloorWidths);
  if (striped) Widen(columns);
  columns.push_back({.caption = "行No", .width = kRowNumberWidth, .shown = false});
  return columns;
}

std::vector<FloorPartColumn> Set_dbgBui(const PartNames& names, bool striped) {
  std::vector<FloorPartColumn> columns = Columns(PartCaptions(names), kPartWidths);
  if (striped) Widen(columns);
  return columns;
}

}  // namespace rbt

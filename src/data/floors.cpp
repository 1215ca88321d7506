// SPDX-License-Identifier: MIT
#include "data/floors.h"

#include "platform/fault.h"
#include "platform/text/characters.h"

namespace rbt {

namespace {

struct NamedFloor {
  int code;
  std::string_view label;
};
constexpr NamedFloor kNamedFloors[] = {
    {kFoundationFloor, "基礎階"},
    {kRoofFloor, "Ｒ階"},
    {kPenthouseFloor, "ＰＨ階"},
    {kNoFloor, "階なし"},
};

}  // namespace

int FloorIndex(int floor_code) {
  if (floor_code < kLowestFloor || floor_code > kNoFloor) {
    throw Fault(FaultKind::subscript_out_of_range, "階 " + std::to_string(floor_code));
  }
  return floor_code - kLowestFloor;
}

std::string FloorLabel(int floor_code) {
  FloorIndex(floor_code);
  for (const NamedFloor& floor : kNamedFloors) {
    if (floor.code == floor_code) return std::string(floor.label);
  }
  const bool basement = floor_code < kFoundationFloor;
  return (basement ? "Ｂ" : "") + ToFullWidth(std::to_string(basement ? -floor_code : floor_code)) + "階";
}

}  // namespace rbt

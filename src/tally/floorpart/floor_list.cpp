// SPDX-License-Identifier: MIT
#include "tally/floorpart/floor_list.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "platform/numbers/number_words.h"
#include "platform/text/characters.h"

namespace rbt {
namespace {

constexpr std::string_view kFloorWord = "階";
constexpr std::string_view kBasementMark = "Ｂ";

struct NamedFloor {
  int code;
  std::string_view label;
};
constexpr std::array<NamedFloor, 4> kNamedFloors{{
    {kFoundationFloor, "基礎階"},
    {kRoofFloor, "Ｒ　階"},
    {kPenthouseFloor, "ＰＨ階"},
    {kNoFloor, "階なし"},
}};

/// "3-" as well as "-3".
double SignedNumber(const std::string& text) {
  const bool sign_behind = text.size() > 1 && text.back() == '-';
  return sign_behind ? -NumberOfText(text.substr(0, text.size() - 1), "階") : NumberOfText(text, "階");
}

}  // namespace

std::vector<std::int16_t> ListedFloors(const FloorScope& scope) {
  std::vector<std::int16_t> floors;
  const bool from_foundation = scope.start == kFoundationFloor;
  if (from_foundation) floors.push_back(kFoundationFloor);
  if (!from_foundation || scope.end != kFoundationFloor) {
    for (int floor = from_foundation ? scope.lowest : scope.start; floor <= scope.end; ++floor) {
      if (floor != kFoundationFloor) floors.push_back(static_cast<std::int16_t>(floor));
    }
  }
  // A range that reaches beyond the storeys lists its special floors already.
  for (const int special : kSpecialFloors) {
    const bool taken = !IsSpecialFloor(scope.start) && scope.specials.Has(special);
    const bool listed = std::find(floors.begin(), floors.end(), special) != floors.end();
    if (taken && !listed) floors.push_back(static_cast<std::int16_t>(special));
  }
  return floors;
}

std::string FloorListLabel(int floor_code) {
  for (const NamedFloor& floor : kNamedFloors) {
    if (floor.code == floor_code) return std::string(floor.label);
  }
  std::string label = std::to_string(std::abs(floor_code));
  if (floor_code < kFoundationFloor) label += kBasementMark;
  return label.append(kFloorWord);
}

std::int16_t Trim_FloorName(std::string_view label) {
  for (const NamedFloor& floor : kNamedFloors) {
    if (floor.label == label) return static_cast<std::int16_t>(floor.code);
  }
  const std::string number = ReplaceAll(ReplaceAll(label, kFloorWord, ""), kBasementMark, "-");
  return ToInt16(SignedNumber(number), "階");
}

void ListFloors(FloorTables& tables, const std::vector<std::int16_t>& floors) {
  tables.KaiGyou.clear();
  for (const std::int16_t floor : floors) {
    const int f = FloorIndex(floor);
    tables.KaiGyou.push_back({FloorListLabel(floor), tables.KaiBuiGoukei[f], tables.KaiGoukei[f]});
  }
  tables.KaiGyou.push_back({std::string(kFloorTotalLabel), tables.BuiGoukei, tables.SouGoukei});
  tables.KaiGyouKai = floors;
  tables.KaiGyouKai.push_back(0);
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "reports/floorpart/floorpart_texts.h"

#include <array>
#include <cstdlib>

#include <fmt/format.h>

#include "data/floors.h"
#include "tally/floorpart/floor_words.h"

namespace rbt {

namespace {

/// How sheets call the floors that are no storeys, each in its own way.
struct FloorWords {
  int floor;
  std::string_view range_end;
  std::string_view one_floor;
  std::string_view block;
};
constexpr std::array<FloorWords, 3> kFloorWords{{
    {kRoofFloor, "Ｒ階", "Ｒ階", "Ｒ階"},
    {kPenthouseFloor, "ﾍﾟﾝﾄﾊｳｽ", "Ｐ階", "Ｐ階"},
    {kNoFloor, "階なし", "階なし", "階無"},
}};

std::string WordOr(int floor_code, std::string_view FloorWords::*word, const std::string& otherwise) {
  for (const FloorWords& row : kFloorWords) {
    if (row.floor == floor_code) return std::string(row.*word);
  }
  return otherwise;
}

std::string NumberedFloor(int floor_code) { return std::to_string(floor_code) + "階"; }

/// Special floors are taken beside a range that starts below them.
SpecialMask TakenBeside(const SelectionData& selection) {
  return IsSpecialFloor(selection.KaiStart) ? SpecialMask() : selection.TokubetuMask;
}

bool IsOneSpecialFloor(const SelectionData& selection) {
  return selection.KaiStart == selection.KaiEnd && IsSpecialFloor(selection.KaiStart);
}

}  // namespace

bool HoldsThinBarsAlone(const SelectionData& selection) {
  return selection.UlbonOnly || selection.MaterialKindMask.IsNone();
}

std::string ListedScope(const SelectionData& selection) {
  const std::string_view words = IsOneSpecialFloor(selection) ? SpecialFloorWord(selection.KaiStart)
                                                              : TakenBesideWords(TakenBeside(selection));
  return fmt::format("【{}階～{}階】{}", selection.KaiStart, selection.KaiEnd, words);
}

std::string RangeScope(const SelectionData& selection) {
  const auto end = [](int floor) { return WordOr(floor, &FloorWords::range_end, NumberedFloor(floor)); };
  const SpecialMask taken = TakenBeside(selection);
  const std::string_view roof = taken.Has(kRoofFloor) ? "R階 " : "";
  const std::string_view penthouse = taken.Has(kPenthouseFloor) ? "P階 " : "";
  std::string scope = fmt::format("【{}～{}】", end(selection.KaiStart), end(selection.KaiEnd));
  if (!roof.empty() || !penthouse.empty()) scope += fmt::format("({}{}を含む)", roof, penthouse);
  return scope;
}

std::string OneFloorScope(int floor_code) {
  return fmt::format("【{}分】", WordOr(floor_code, &FloorWords::one_floor, NumberedFloor(floor_code)));
}

std::string OnePartScope(std::string_view part_name) { return fmt::format("［{}］分", part_name); }

std::string PrintedFloorName(int floor_code) {
  const std::string_view word = SpecialFloorWord(floor_code);
  return word.empty() ? NumberedFloor(floor_code) : std::string(word);
}

std::string BlockFloorName(int floor_code) {
  if (floor_code == kFoundationFloor) return "基礎";
  const std::string storey = fmt::format("{}{}Ｆ", floor_code < 0 ? "B" : "", std::abs(floor_code));
  return WordOr(floor_code, &FloorWords::block, storey);
}

}  // namespace rbt

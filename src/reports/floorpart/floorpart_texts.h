// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "tally/selection.h"

namespace rbt {

/// What the sheets of floors and parts call what they tell of.

/// True when thin bars alone were tallied: they then stand where the deformed diameters do.
bool HoldsThinBarsAlone(const SelectionData& selection);

/// "【1階～8階】Ｒ階を含む。": the floors by their codes, then the words of the special ones.
std::string ListedScope(const SelectionData& selection);
/// "【1階～8階】(R階 P階 を含む)": of the special floors the R floor and the penthouse alone are told.
std::string RangeScope(const SelectionData& selection);
/// "【12階分】", "【Ｐ階分】".
std::string OneFloorScope(int floor_code);
/// "［柱］分".
std::string OnePartScope(std::string_view part_name);

/// "12階", "Ｒ階", "ＰＨ階", "階なし": how the print questions call a floor.
std::string PrintedFloorName(int floor_code);
/// "12Ｆ", "B2Ｆ", "基礎", "Ｒ階", "Ｐ階", "階無": beside the blocks of floors, parts and diameters.
std::string BlockFloorName(int floor_code);

}  // namespace rbt

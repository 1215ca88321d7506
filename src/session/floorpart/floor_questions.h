// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "data/floor_mask.h"
#include "store/database.h"

namespace rbt {

/// Titles of the questions about the R floor, the penthouse and the rows without a floor.
using SpecialTitles = std::array<std::string_view, kSpecialFloors.size()>;

/// The special floors that the schedule has rows of; of the rows without a floor those with a diameter.
SpecialMask SpecialFloorsOf(Database& site);

/// Asks about each of the floors in turn; gives those that the user takes.
SpecialMask AskAboutSpecialFloors(SpecialMask floors, const SpecialTitles& titles);

}  // namespace rbt

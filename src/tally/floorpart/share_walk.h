// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "store/database.h"
#include "tally/floorpart/row_share.h"

namespace rbt {

/// Takes the share of a row in; `floor` is its 階 where the walk reads it, else nothing.
using ShareTaker = std::function<void(const RowShare& share, const std::optional<std::int32_t>& floor)>;

/// Gives the share of one row to `take`, if it has one. A fault then names the row's page and line.
void TakeShare(const BarRow& row, const std::optional<std::int32_t>& floor, const ShareRules& rules,
               const ShareTaker& take);

enum class ReadFloors { no, yes };

/// Gives the shares of the rows of a statement to `take`, in table order. Pending events run before and
/// after.
void WalkShares(Database& site, std::string_view statement, const ShareRules& rules, ReadFloors floors,
                const ShareTaker& take);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "data/parts.h"
#include "platform/numbers/checked_array.h"
#include "platform/numbers/currency.h"

namespace rbt {

/// Entries of a table by part: 1 to 11 are in use, 0 stays empty.
inline constexpr int kPartEntries = kOtherParts + 1;
inline constexpr int kFirstPart = 1;

/// A row of the list that a floor or part screen shows and its reports print.
struct ListRow {
  std::string label;
  CheckedArray<Currency, kPartEntries> parts;  ///< kilograms of the parts 1 to 11
  Currency total;                              ///< kilograms of the row

  friend bool operator==(const ListRow&, const ListRow&) = default;
};

}  // namespace rbt

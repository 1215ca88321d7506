// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/numbers/currency.h"

namespace rbt {

/// A count raised by a ratio (0.1 for 10 percent), to the nearest whole number, halves up. Faults:
/// `overflow`.
std::int32_t RaisedCount(std::int32_t count, double ratio);

/// Whole kilograms of `bars` stock bars of a diameter row and stock column: the product is brought to
/// Currency before it is rounded, so that no binary fraction decides a half.
Currency StockKilograms(int diameter_row, int stock_column, std::int32_t bars);

}  // namespace rbt

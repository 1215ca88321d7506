// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "data/bar_tables.h"
#include "platform/numbers/checked_array.h"
#include "platform/numbers/currency.h"

namespace rbt {

/// What is told of one diameter, on a sheet or in a saved row: by stock column its bars and their kilograms,
/// then the sums in kilograms, then the fittings.
struct DiameterFigures {
  CheckedArray<std::int32_t, kStockColumns> bars;
  CheckedArray<Currency, kStockColumns> weights;
  Currency stock;
  Currency installed;
  std::int32_t welds = 0;
  std::int32_t threads = 0;
  std::int32_t plates = 0;
  std::int32_t cuts = 0;

  friend bool operator==(const DiameterFigures&, const DiameterFigures&) = default;
};

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "data/spiral_mask.h"
#include "platform/numbers/checked_array.h"
#include "platform/numbers/currency.h"

namespace rbt {

/// The result of the bulk, shape, page and name tallies. Row `d` is a diameter: 0 to 11 D10 to D51, 12 to 17
/// Ulbon U6 to U16. Column `l` is a stock length: 0 to 17 are 3.5 m to 12.0 m in steps of 0.5 m, 18 is 13.0
/// m; there is no 12.5 m column. Weights are kilograms. An index outside a table throws `subscript out of
/// range`.
struct TallyTable {
  Checked2D<std::int32_t, 19, 19> BarCount;         ///< stock bars
  Checked2D<Currency, 20, 19> StockWeight;          ///< stock weight per cell
  Checked2D<Currency, 20, 19> InstalledWeight;      ///< installed weight per cell
  Checked2D<double, 13, 19> CutLengthM;             ///< metres of installed bar, a working table
  CheckedArray<double, 12> LengthWithoutColumnM;    ///< metres that the page and name tallies keep in no cell
  CheckedArray<Currency, 20> StockWeightByDia;      ///< sum of the cells, each rounded to a whole kilogram
  CheckedArray<Currency, 20> InstalledWeightByDia;  ///< sum of the installed cells
  CheckedArray<std::int32_t, 20> WeldCount;         ///< gas pressure welds
  CheckedArray<std::int32_t, 19> ThreadCount;
  CheckedArray<std::int32_t, 19> PlateCount;  ///< anchor plates
  CheckedArray<std::int32_t, 19> CutCount;
  CheckedArray<double, 20> UlbonLengthM;  ///< metres, rows 12 to 17
  CheckedArray<double, 20> UlbonWeight;
  CheckedArray<std::int32_t, 20> UlbonWeldCount;
  CheckedArray<std::int32_t, 20> UlbonThreadCount;  ///< shape tallies
  CheckedArray<std::int32_t, 20> UlbonPlateCount;   ///< shape tallies
  CheckedArray<Currency, 3> SpiralWeight;           ///< by `kSpiralKinds`
  CheckedArray<Currency, 18> SpiralUlbonByDia;
  SpiralMask SpiralKinds;  ///< which of them have weight
  Currency SpiralTotal;
  Currency TotalStockWeight;  ///< whole kilograms of the twelve deformed diameters
  Currency TotalInstalledWeight;
  std::int32_t TotalWeldCount = 0;
  std::int32_t TotalThreadCount = 0;
  std::int32_t TotalPlateCount = 0;
  std::int32_t TotalCutCount = 0;
  double LossRatePercent = 0.0;
  std::int32_t HighStrengthRowCount = 0;  ///< rows of 予備2 3 seen
  std::string StockWarningText;  ///< the last row whose stock length has no column; empty when all had one

  friend bool operator==(const TallyTable&, const TallyTable&) = default;
};

extern TallyTable TallyGrid;

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "platform/numbers/checked_array.h"
#include "tally/list_row.h"

namespace rbt {

/// One fitting of the part tally, counted two ways.
struct PartFitting {
  Checked2D<std::int32_t, kPartEntries, kDiameterRows> Bui;  ///< [P][R]
  CheckedArray<std::int32_t, kDiameterRows> Taisa;           ///< [R]

  friend bool operator==(const PartFitting&, const PartFitting&) = default;
};

/// The result of the part tally. P is a part, 1 to 11; R a diameter, 0 to 11 D10 to D51, 12 to 17 Ulbon U6 to
/// U16; C a stock column, 0 to 17 3.5 m to 12.0 m, 18 13.0 m. Weights are kilograms: stock weight of deformed
/// bars, installed weight of Ulbon. An index outside a table throws `subscript out of range`.
struct PartTables {
  using Counts = Checked2D<std::int32_t, kDiameterRows, kStockColumns>;
  using Weights = Checked2D<Currency, kDiameterRows, kStockColumns>;

  CheckedArray<Counts, kPartEntries> BuiHonsu;  ///< [P][R][C] bars
  Counts TaisaHonsu;                            ///< [R][C] bars of all parts, in the columns in use

  PartFitting Assetu;    ///< gas pressure welds: AssetuBui, AssetuTaisa
  PartFitting Neji;      ///< threads: NejiBui, NejiTaisa
  PartFitting Teichaku;  ///< anchor plates
  PartFitting Setsudan;  ///< cuts

  CheckedArray<Weights, kPartEntries> BuiJyuuryo;                   ///< [P][R][C]
  Checked2D<Currency, kDiameterRows, kPartEntries> BuiTaisaGoukei;  ///< [R][P]: cells of the grid
  CheckedArray<Currency, kPartEntries> BuiGoukei;                   ///< [P]
  CheckedArray<Currency, kDiameterRows> TaisaGoukei;                ///< [R]
  Currency SouGoukei;

  std::vector<ListRow> BuiGyou;                  ///< a row for each listed diameter, the total row last
  std::vector<std::optional<int>> BuiGyouTaisa;  ///< R of each row; nothing for gap and total

  bool HoopAri = false;  ///< the selected rows hold shape 87
  bool TeiAri = false;   ///< ... an anchor-plate shape

  friend bool operator==(const PartTables&, const PartTables&) = default;
};

struct PartFittingName {
  std::string_view name;
  PartFitting PartTables::*tables;
};
inline constexpr std::array<PartFittingName, 4> kPartFittings{{
    {"Assetu", &PartTables::Assetu},
    {"Neji", &PartTables::Neji},
    {"Teichaku", &PartTables::Teichaku},
    {"Setsudan", &PartTables::Setsudan},
}};

extern PartTables PartTally;

}  // namespace rbt

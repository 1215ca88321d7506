// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "data/floors.h"
#include "platform/numbers/block_array.h"
#include "tally/list_row.h"

namespace rbt {

/// One fitting of the floor tally, counted four ways.
struct FloorFitting {
  using ByRow = CheckedArray<std::int32_t, kDiameterRows>;

  ByRow Taisa;                                                        ///< [R]
  BlockArray<ByRow, kFloorCount> Kai;                                 ///< [F][R]
  CheckedArray<BlockArray<ByRow, kFloorCount>, kPartEntries> KaiBui;  ///< [P][F][R]
  CheckedArray<std::int32_t, kFloorCount> KaiSou;                     ///< [F]

  friend bool operator==(const FloorFitting&, const FloorFitting&) = default;
};

/// The result of the floor tally. F is a floor, `FloorIndex` of 階; P a part, 1 to 11; R a diameter, 0 to 11
/// D10 to D51, 12 to 17 Ulbon U6 to U16; C a stock column, 0 to 17 3.5 m to 12.0 m, 18 13.0 m. Counts are
/// bars, weights kilograms. An index outside a table throws `subscript out of range`.
struct FloorTables {
  using Counts = Checked2D<std::int32_t, kDiameterRows, kStockColumns>;
  using Weights = Checked2D<Currency, kDiameterRows, kStockColumns>;
  using ByPart = CheckedArray<Currency, kPartEntries>;
  using ByRow = CheckedArray<Currency, kDiameterRows>;

  CheckedArray<BlockArray<Counts, kFloorCount>, kPartEntries> KaiBuiHonsu;  ///< [P][F][R][C]
  BlockArray<Counts, kFloorCount> KaiHonsu;                                 ///< [F][R][C]
  Counts SouHonsu;                                                          ///< [R][C]

  FloorFitting Assetu;    ///< gas pressure welds: AssetuTaisa, AssetuKai, AssetuKaiBui, AssetuKaiSou
  FloorFitting Neji;      ///< threads: NejiTaisa and so on
  FloorFitting Teichaku;  ///< anchor plates
  FloorFitting Setsudan;  ///< cuts

  /// The weight shown: stock or, by the setting 階別集計定取, installed. [F][P][R][C]
  CheckedArray<BlockArray<Weights, kPartEntries>, kFloorCount> KaiBuiJyuuryo;
  CheckedArray<BlockArray<Weights, kPartEntries>, kFloorCount> KaiBuiTeiJyuuryo;  ///< always stock weight
  CheckedArray<ByPart, kFloorCount> KaiBuiGoukei;  ///< [F][P]: cells of the grid
  CheckedArray<Currency, kFloorCount> KaiGoukei;   ///< [F]
  ByPart BuiGoukei;                                ///< [P]
  BlockArray<ByRow, kFloorCount> KaiTaisaGoukei;   ///< [F][R]
  Weights TaisaTeiGoukei;  ///< [R][C] stock weight, of deformed rows from the count of all floors
  ByRow TaisaGoukei;       ///< [R] stock weight
  Currency SouGoukei;      ///< sum of the floors
  Currency SouTeiGoukei;   ///< sum of the diameters: may differ by some kilograms

  /// The same sums of installed weight; 0 while stock weight is shown.
  CheckedArray<ByPart, kFloorCount> KaiBuiTorituke;
  CheckedArray<Currency, kFloorCount> KaiTorituke;
  ByPart BuiTorituke;
  ByRow TaisaTorituke;
  Currency SouTorituke;

  std::vector<ListRow> KaiGyou;          ///< a row for each listed floor, the total row last
  std::vector<std::int16_t> KaiGyouKai;  ///< 階 of each row; 0 for the total row

  bool HoopAri = false;  ///< the selected rows hold shape 87
  bool TeiAri = false;   ///< ... an anchor-plate shape

  std::int16_t KaiGyouSuu() const { return static_cast<std::int16_t>(KaiGyou.size()); }

  friend bool operator==(const FloorTables&, const FloorTables&) = default;
};

struct FloorFittingName {
  std::string_view name;
  FloorFitting FloorTables::*tables;
};
inline constexpr std::array<FloorFittingName, 4> kFloorFittings{{
    {"Assetu", &FloorTables::Assetu},
    {"Neji", &FloorTables::Neji},
    {"Teichaku", &FloorTables::Teichaku},
    {"Setsudan", &FloorTables::Setsudan},
}};

extern FloorTables FloorTally;

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <random>

#include "tally/closing_sums.h"
#include "tally/floorpart/add_share.h"
#include "tally/floorpart/floor_tally.h"
#include "tally/floorpart/part_list.h"
#include "tally/floorpart/part_tally.h"
#include "tally/tally_result.h"

namespace rbt::test {

/// How a random tally of floors or parts is made.
struct RandomTally {
  bool thin = false;       ///< Ulbon alone, else deformed bars
  bool with_13m = false;   ///< the 13.0 m column is in use
  bool installed = false;  ///< floors show installed weight
  double uplift = 0.0;
};

class RandomTallies {
 public:
  explicit RandomTallies(unsigned seed) : random_(seed) {}

  int Number(int lowest, int highest) { return std::uniform_int_distribution<int>(lowest, highest)(random_); }

  /// Half of its diameters hold something; the totals are the sums.
  TallyResult Grid(TallyKind kind, bool with_13m) {
    TallyTable table;
    for (int d = 0; d < kDeformedRows; ++d) {
      if (Number(0, 1) == 0) continue;
      for (int l = 0; l < StockColumnsInUse(with_13m); ++l) {
        if (Number(0, 2) != 0) continue;
        table.BarCount[d][l] = Number(-5, 5000);
        table.StockWeight[d][l] = Currency::FromTenThousandths(Number(0, 900'000'000));
      }
      table.StockWeightByDia[d] = Currency::FromInteger(Number(0, 900'000));
      table.InstalledWeightByDia[d] = Currency::FromTenThousandths(Number(1, 900'000'000));
      table.TotalStockWeight += table.StockWeightByDia[d];
      table.TotalInstalledWeight += table.InstalledWeightByDia[d];
      table.TotalWeldCount += table.WeldCount[d] = Number(0, 900);
      table.TotalThreadCount += table.ThreadCount[d] = Number(0, 900);
      table.TotalPlateCount += table.PlateCount[d] = Number(0, 900);
      table.TotalCutCount += table.CutCount[d] = Number(0, 900);
    }
    const double installed = table.TotalInstalledWeight.ToDouble();
    const Currency loss = table.TotalStockWeight - table.TotalInstalledWeight;
    if (installed != 0.0) table.LossRatePercent = loss.ToDouble() / installed * 100.0;
    TallyResult result;
    result.kind = kind;
    result.selection.MaterialKindMask = KindMask(Number(1, 15));
    result.selection.MaterialFormMask = FormMask(static_cast<std::int16_t>(Number(1, 15)));
    result.selection.HoopMode = ShapeFilterOf(Number(0, 2));
    result.tables = table;
    return result;
  }

  /// Floors -3 to 12 and the special ones, from 0 or below.
  TallyResult Floors(const RandomTally& how) {
    TallyResult result = Result(TallyKind::floor, how);
    SelectionData& selection = result.selection;
    selection.KaiMin = static_cast<std::int16_t>(Number(-3, 1));
    selection.KaiStart = static_cast<std::int16_t>(Number(0, 1) == 0 ? 0 : Number(-3, 4));
    selection.KaiEnd = static_cast<std::int16_t>(Number(std::max<int>(1, selection.KaiStart), 12));
    selection.TokubetuMask = SpecialMask(static_cast<std::int16_t>(Number(0, 7)));
    const auto listed = ListedFloors(FloorScopeOf(selection));
    FloorTables tables;
    for (int row = 0; row < kRows; ++row) {
      const std::int16_t floor =
          listed.at(static_cast<std::size_t>(Number(0, static_cast<int>(listed.size()) - 1)));
      AddShare(tables, FloorIndex(floor), Share(how),
               how.installed ? CellWeight::installed : CellWeight::none);
    }
    FloorRules rules;
    rules.installed = how.installed;
    rules.uplift = how.uplift;
    rules.columns = ColumnsInUse(how.with_13m);
    CloseFloorTally(tables, rules);
    ListFloors(tables, listed);
    result.tables = std::move(tables);
    return result;
  }

  TallyResult Parts(const RandomTally& how) {
    TallyResult result = Result(TallyKind::part, how);
    result.selection.KaiStart = static_cast<std::int16_t>(Number(-3, 4));
    result.selection.KaiEnd = static_cast<std::int16_t>(Number(4, 12));
    result.selection.TokubetuMask = SpecialMask(static_cast<std::int16_t>(Number(0, 7)));
    PartTables tables;
    for (int row = 0; row < kRows; ++row) AddShare(tables, Share(how), CellWeight::stock);
    PartRules rules;
    rules.uplift = how.uplift;
    rules.columns = ColumnsInUse(how.with_13m);
    ClosePartTally(tables, rules);
    ListParts(tables, how.thin);
    result.tables = std::move(tables);
    return result;
  }

 private:
  static constexpr int kRows = 60;

  TallyResult Result(TallyKind kind, const RandomTally& how) {
    TallyResult result;
    result.kind = kind;
    result.selection.MaterialKindMask = KindMask(how.thin ? 0 : Number(1, 15));
    result.selection.UlbonOnly = how.thin;
    result.selection.MaterialFormMask = FormMask(static_cast<std::int16_t>(Number(1, 15)));
    result.selection.HoopMode = ShapeFilterOf(Number(0, 2));
    return result;
  }

  RowShare Share(const RandomTally& how) {
    RowShare share;
    share.part = Number(1, 11);
    share.row = how.thin ? Number(12, 17) : Number(0, 11);
    share.column = Number(0, how.with_13m ? kColumn13m : kColumn13m - 1);
    share.bars = Number(0, 300);
    share.installed_kilograms = Number(0, 100'000) / 7.0;
    const int fitted = how.thin ? share.row : Number(0, 11);
    share.welds = {fitted, Number(0, 40)};
    share.threads = {fitted, Number(0, 40)};
    share.plates = {fitted, Number(0, 1) == 0 ? std::optional<std::int32_t>() : Number(0, 40)};
    share.cuts = {fitted, Number(0, 40)};
    return share;
  }

  std::mt19937 random_;
};

}  // namespace rbt::test

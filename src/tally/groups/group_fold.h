// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "tally/engine/stock_engine.h"
#include "tally/groups/bar_group.h"
#include "tally/tally_grid.h"

namespace rbt {

/// How a tally by groups takes a group in. The shape tally and the shape by page and line tally share the
/// rule.
struct GroupRules {
  bool count_hoop_welds = true;  ///< setting 溶接フープの圧接数; false: shape 87 has bars but no welds

  /// Setting 定尺チェック. The schedule's stock length then belongs to what makes pieces equal; the engine
  /// takes groups that differ in nothing else as one.
  bool keep_schedule_stock = false;
  /// Stock and bars of a group, by the engine or of the schedule's own stock length.
  std::function<StockResult(const BarGroup& group)> choose_stock = nullptr;

  /// Weight of one stock bar by row and column. The tally by page and line has a table of its own, which is
  /// wrong at 13.0 m and stays so: `Get_BarWeightTbl`.
  double (*bar_weight)(int d, int l) = nullptr;
};

/// Folds the groups of a main statement, in the order in which it gives them: groups that follow each other
/// and have the same pieces share their stock bars.
class GroupFold {
 public:
  GroupFold(TallyTable& table, GroupRules rules);

  /// Faults: `subscript out of range` for a diameter or a stock length that has no place in the table, `field
  /// not found` for a thin bar that is no Ulbon, `division by zero` for pieces without length, `overflow`.
  void Add(const BarGroup& group);
  /// The last group's stock.
  void Finish();

 private:
  void CountWeldsThreadsPlates(const BarGroup& group);
  bool HasSamePieces(const BarGroup& group) const;
  void BuyStock();

  TallyTable& table_;
  GroupRules rules_;
  std::optional<BarGroup> held_;
};

/// Adds a group of Ulbon bars: metres, weight, welds, threads and plates, no stock. Faults: `subscript out of
/// range` for a diameter, or that of a weld, that Ulbon does not have, `overflow`.
void FoldUlbonGroup(TallyTable& table, const BarGroup& group, bool count_hoop_welds);

}  // namespace rbt

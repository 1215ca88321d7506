// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <span>
#include <utility>
#include <vector>

#include "planning/solve/content_table.h"
#include "planning/solve/cover_lp.h"
#include "planning/solve/cutting_task.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// False where the tables of contents would be too large: very long bars with very many lengths to cut. Such
/// tasks are cut greedily.
bool HasRoomForColumns(const CuttingTask& task);

/// The linear program of a task: how many bars of every content cover what is left of each item at the least
/// cost, when bars may be bought in parts. Contents are found as they are needed, by their price.
class Columns {
 public:
  struct Column {
    int bar = 0;
    Content content;
  };

  Columns(const CuttingTask& task, Pace& pace);

  /// Takes in the contents of a cutting.
  void Offer(const Cutting& cutting);
  /// From now on so many pieces are left of each item and so many of each rest bar (parallel to the task's
  /// bars, those to buy not looked at); contents that hold more than is left are set aside.
  void SetLeft(const ByIndex<std::int64_t>& items, const ByIndex<std::int64_t>& bars);

  /// From now on only these bars may be used (parallel to the task's bars).
  void AllowBars(const ByIndex<bool>& allowed);

  /// Until no content improves the cost. False when it was stopped or the program has no optimum.
  bool Converge();
  /// The same, but also no longer than the cost is above the best bound rounded up to what whole bars can
  /// cost.
  bool ConvergeToBound();
  /// The same for so many rounds at most, then the cost is an estimate from above; no longer than the bound
  /// is at most `enough`, in cost units.
  bool Estimate(int rounds, double enough);

  /// Of the last solve, in cost units.
  double Cost() const { return lp_.Cost(); }
  /// Since the last `SetLeft` or `AllowBars`, in cost units: no cutting of what is left costs less.
  double Bound() const { return bound_; }
  /// A bound rounded up to what whole bars can cost.
  double RoundedUp(double bound) const;
  /// The price of each item that proved the bound.
  const std::vector<double>& BoundPrices() const { return bound_prices_; }

  const std::vector<Column>& All() const { return columns_; }
  /// Bars of each column of the last solve; columns found since stand behind them.
  std::span<const double> Values() const { return lp_.Values(); }

 private:
  /// Pieces of an item on a bar, the rest of which the table fills.
  struct Lead {
    int bar = -1;
    int item = -1;  ///< -1: the table fills the whole bar
    int pieces = 0;
    double worth = 0.0;
  };

  enum class Round { found, none_found, failed };
  /// Solves the program and adds contents that pay.
  Round RunRound();
  bool IsAtBound() const;
  bool Add(int bar, const Content& content);
  void AddSingles();
  void Purge();
  /// Prices of the items and of the rest bars' scarcity from the last solve.
  void ReadPrices();
  /// Adds the dearest content of every bar and of every item, where it pays. Returns how many.
  int AddPayingColumns();
  /// The bar to buy that is worth most for its cost with the item on it; the dearest lead of each bar is
  /// kept.
  Lead BestWith(int item);
  void Keep(const Lead& lead);
  Content ContentOf(const Lead& lead) const;
  bool AddIfItPays(const Lead& lead);
  bool IsLeft(const Content& content) const;
  void AllowColumns();
  void BeginBound();
  void UpdateBound();

  const CuttingTask& task_;
  Pace& pace_;
  int items_;
  int bars_;
  ByIndex<std::int64_t> left_;
  ByIndex<std::int64_t> bars_left_;  ///< of rest bars
  ByIndex<bool> allowed_;            ///< of each bar
  ByIndex<double> cost_;     ///< of each bar in the program: equal costs are told apart by the table weight
  double whole_cost_ = 0.0;  ///< of which every cost of whole bars is a multiple; 0: of nothing
  CoverLp lp_;
  std::unique_ptr<ContentTable> table_;
  std::vector<Column> columns_;
  std::set<std::pair<int, Content>> known_;
  ByIndex<double> prices_;    ///< of the items
  ByIndex<double> scarcity_;  ///< of each rest bar: what one more would save
  ByIndex<Lead> dearest_;     ///< of each bar
  double bound_ = 0.0;
  ByIndex<double> bound_prices_;
};

}  // namespace rbt::planning

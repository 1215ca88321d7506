// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "planning/problem/options.h"
#include "planning/problem/site_tally.h"

namespace rbt::planning {

/// 10^-6 kg: unit weights per mm, three-figure bar weights and all their sums are whole numbers of it.
using Milligrams = std::int64_t;
/// Millionths of a cost unit, which is a mm of bought bar or a yen.
using Micros = std::int64_t;

/// What may be cut from the same bars and is ordered on the same lines.
struct BarSteel {
  int diameter = 0;   ///< diameter code, 0: none given
  int kind = 1;       ///< 予備2, at least 1
  bool hoop = false;  ///< welded closed hoops are made elsewhere

  friend auto operator<=>(const BarSteel&, const BarSteel&) = default;
};

/// A length that may be bought.
struct StockLength {
  int mm = 0;
  Milligrams table_weight = 0;                       ///< of one bar, as the tally weighs it
  Micros cost = 0;                                   ///< of one bar: its mm, or its table weight by the price
  std::optional<std::int64_t> price = std::nullopt;  ///< yen a tonne
  Milligrams least_lot = 0;                          ///< least table weight of a purchase line; 0: any

  friend bool operator==(const StockLength&, const StockLength&) = default;
};

/// Bars left from earlier work: free.
struct RestBar {
  int mm = 0;
  std::int64_t count = 0;

  friend bool operator==(const RestBar&, const RestBar&) = default;
};

/// A steel that has pieces to plan, with the bars that it may be cut from. Both lists ascend, each length
/// once.
struct Supply {
  BarSteel steel;
  std::vector<StockLength> lengths;  ///< never empty
  std::vector<RestBar> rests;        ///< none for hoops
};

/// A row of the schedule, or a line of a file, whose pieces are planned.
struct PlannedRow {
  std::optional<int> page;  ///< 0 for a line of a file
  std::optional<int> line;
  std::int64_t pieces = 0;    ///< at least 1
  int own_mm = 0;             ///< the schedule's stock length; 0: none, from a file
  std::int64_t own_bars = 0;  ///< bars that the schedule gives the row
  std::string mark;           ///< from a file
  std::size_t place = 0;      ///< in the table or file, from 0
};

/// All pieces of one length in a group.
struct Cut {
  int mm = 0;
  std::int64_t count = 0;        ///< sum over the rows
  std::vector<PlannedRow> rows;  ///< in table order
};

/// Pieces that may share bars.
struct Group {
  std::string scope;
  std::size_t supply = 0;  ///< index into `Problem::supplies`
  std::vector<Cut> cuts;   ///< by falling length
};

/// Why a row stays as scheduled; the first reason that holds, in this order.
enum class KeptReason { column, empty, joined, welded, scope, too_long };

/// A row that stays as scheduled: its own bars are bought.
struct KeptRow {
  std::optional<int> page;
  std::optional<int> line;
  KeptReason reason = KeptReason::column;
  BarSteel steel;
  int stock_mm = 0;  ///< 0: no length to order
  std::int64_t bars = 0;
  Milligrams table_weight = 0;  ///< of one bar
  std::optional<std::int64_t> price = std::nullopt;
};

/// All that a plan is made from, frozen. Groups stand in the order in which a plan tells them: by scope as
/// given, then by steel; supplies ascend by steel.
struct Problem {
  PlanOptions options;
  std::vector<Supply> supplies;
  std::vector<Group> groups;
  std::vector<KeptRow> kept;            ///< in table order
  std::optional<SiteTally> site_tally;  ///< none without a site
};

}  // namespace rbt::planning

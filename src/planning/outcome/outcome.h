// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"
#include "platform/numbers/currency.h"

namespace rbt::planning {

/// All that is told of a plan: sheets, screens and files only look at it. Weights are milligrams, costs
/// millionths of a mm or of a yen, percents plain numbers; lists stand in the order in which they are told.

/// A row's share of the pieces of a cut.
struct OutcomeShare {
  std::optional<int> page;
  std::optional<int> line;
  std::int64_t pieces = 0;
  std::string mark;
};

struct OutcomeCut {
  int mm = 0;
  std::int64_t count = 0;
  std::vector<OutcomeShare> rows;  ///< pieces go to them in this order
};

struct OutcomePattern {
  Pattern pattern;
  std::int64_t used_mm = 0;
  std::int64_t left_mm = 0;
  int cuts = 0;
};

struct OutcomeGroup {
  std::string scope;
  BarSteel steel;
  std::vector<int> lengths;  ///< mm, rising
  std::vector<OutcomeCut> cuts;
  std::vector<OutcomePattern> patterns;
  Method method = Method::per_row;
  Micros cost = 0;
  Milligrams steel_weight = 0;
  Milligrams table_weight = 0;
  Milligrams installed_weight = 0;
  double loss_percent = 0.0;
  Micros bound = 0;
  std::vector<Price> prices;
};

struct OutcomeKept {
  std::optional<int> page;
  std::optional<int> line;
  KeptReason reason = KeptReason::column;
};

/// A planned row whose own bars are too few.
struct OutcomeShort {
  std::optional<int> page;
  std::optional<int> line;
  std::int64_t bars_needed = 0;
};

struct PurchaseLine {
  BarSteel steel;
  int stock_mm = 0;
  std::int64_t planned = 0;  ///< bars
  std::int64_t kept = 0;     ///< bars of the rows that stay as scheduled
  Milligrams table_weight = 0;
  std::optional<Micros> yen;  ///< millionths; nothing without a price

  std::int64_t Bars() const { return planned + kept; }
};

/// Usable rests of one length.
struct UsableRest {
  BarSteel steel;
  std::int64_t mm = 0;
  std::int64_t count = 0;
};

/// What the bulk tally would show.
struct TallyFigures {
  Currency stock_weight;      ///< TotalStockWeight
  Currency installed_weight;  ///< TotalInstalledWeight
  double loss_rate_percent = 0.0;
};

/// Of one way to cut: the tally's figures with its bars, then those of the planned rows.
struct Figures {
  std::optional<TallyFigures> tally;  ///< nothing without a site
  std::int64_t bars = 0;
  Milligrams steel_weight = 0;
  Milligrams table_weight = 0;
  double loss_percent = 0.0;
  std::int64_t cuts = 0;
};

struct PlanFigures {
  Figures common;
  std::int64_t patterns = 0;
  std::int64_t lengths = 0;  ///< different ones bought
  Milligrams usable_weight = 0;
};

/// Of all groups; kilograms are milligrams here too, yen millionths.
struct OutcomeBound {
  std::int64_t cost = 0;
  std::int64_t plan_cost = 0;
  std::optional<double> gap_percent;   ///< nothing above a bound of 0
  std::optional<double> loss_percent;  ///< nothing for money
};

struct OutcomeAdvice {
  BarSteel steel;
  struct Point {
    int count = 0;
    std::vector<int> lengths;
    Milligrams steel_weight = 0;
    double loss_percent = 0.0;
  };
  std::vector<Point> curve;
};

struct Outcome {
  PlanOptions options;
  Stopped stopped = Stopped::no;
  std::vector<OutcomeGroup> groups;
  std::vector<OutcomeKept> kept;
  std::vector<OutcomeShort> short_rows;
  std::vector<PurchaseLine> purchase;
  std::vector<UsableRest> rests;
  std::optional<Figures> schedule;  ///< nothing without a site
  Figures per_row;
  PlanFigures plan;
  OutcomeBound bound;
  std::vector<OutcomeAdvice> advice;
};

/// All figures of a plan of the problem. Faults: `overflow`.
Outcome Describe(const Problem& problem, const Plan& plan);

/// How far a plan is: "3 of 12 groups: loss 0.123 %, bound 0.101 %", or its cost and bound in yen.
std::string ProgressText(const Problem& problem, const Plan& plan, std::size_t done, std::size_t of);

/// "schedule", "perRow", "greedy", "columns".
std::string_view MethodName(Method method);
/// "column", "empty", "joined", "welded", "scope", "long".
std::string_view ReasonName(KeptReason reason);
/// "", "time", "cancel".
std::string_view StoppedName(Stopped stopped);

}  // namespace rbt::planning

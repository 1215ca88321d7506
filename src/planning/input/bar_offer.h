// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <set>
#include <vector>

#include "planning/input/plan_files.h"
#include "planning/problem/problem.h"
#include "tally/engine/stock_engine.h"

namespace rbt::planning {

/// What the user says of the bars that a plan may take.
struct BarOffer {
  std::optional<std::vector<int>> lengths;              ///< mm that may be bought, of every diameter
  std::optional<std::vector<LengthLine>> length_lines;  ///< with `lengths` these say only prices and lots
  std::vector<RestLine> rests;
  /// Of a steel only these, in mm, out of those that may be bought without them.
  std::map<BarSteel, std::vector<int>> sets = {};
};

/// What a site adds: without an offer the lengths are those of the settings and those that its rows have.
struct SiteLengths {
  StockLengthLimits limits;
  bool use_13m = false;
  std::map<int, std::set<int>> of_rows;  ///< mm by diameter, with a column in the tally's sums
};

/// Refuses offered lengths that a site's tally has no column for: "length 5250 has no column". 13.0 m has one
/// where the site uses it.
void CheckColumns(const BarOffer& offer, bool use_13m);

/// The lengths of a diameter that may be bought, rising, with what they cost by the aim. Refusals: "no stock
/// length is allowed for D16", "no price for D16 6500".
std::vector<StockLength> AllowedLengths(const BarOffer& offer, const SiteLengths* site, int diameter,
                                        Aim aim);

/// Those of them that a steel may take. Refusals: also that of a set without any of them.
std::vector<StockLength> LengthsOfSteel(const BarOffer& offer, const SiteLengths* site, const BarSteel& steel,
                                        Aim aim);

/// The price of a length; nothing where none is offered.
std::optional<std::int64_t> PriceOf(const BarOffer& offer, int diameter, int mm);

/// The rest bars of a steel, rising, each length once; none for hoops.
std::vector<RestBar> RestsOf(const BarOffer& offer, const BarSteel& steel);

/// "D16".
std::string DiameterName(int diameter);

}  // namespace rbt::planning

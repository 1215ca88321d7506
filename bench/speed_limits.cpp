// SPDX-License-Identifier: MIT
#include "speed_limits.h"

namespace rbt::bench {

namespace {

constexpr std::int64_t kSite = 50'000;        ///< a large site
constexpr std::int64_t kLargest = 1'000'000;  ///< growth stays linear

/// A miss has to be a step backwards, whatever machine it shows on: the limits stand half as high again, or
/// twice, as what is measured. A first reading in place: below three quarters of a second. Filters: 40, 50
/// and 120 ms where the bare aggregation takes 50.
constexpr Limit kLimits[] = {
    {"start and end, cold", kSite, Figure::x_bare, 0.3, 0.07},
    {"bulk tally, cold", kSite, Figure::x_bare, 2.0, 0.9},
    {"bulk tally, cold", kSite, Figure::syncs, 0, 0},
    {"bulk tally, cold", kLargest, Figure::x_bare, 1.0, 0.5},
    {"bulk tally, cold", kLargest, Figure::peak_mb, 60, 60},
    {"shape tally, cold", kSite, Figure::x_bare, 3.0, 2.2},
    {"shape tally, cold", kSite, Figure::syncs, 0, 0},
    {"shape tally, cold", kLargest, Figure::peak_mb, 65, 60},
    {"fresh site prepared, cold", kSite, Figure::x_bare, 4.5, 3.0},
    {"Jet site in place, first, cold", kSite, Figure::x_bare, 14.0, 8.0},
    {"Jet site in place, later, cold", kSite, Figure::x_bare, 2.0, 0.9},
    {"Jet site in place, later, cold", kSite, Figure::syncs, 0, 0},
    {"activation that changes nothing", kSite, Figure::x_bare, 0.06, 0.02},
    {"filter to redraw, bulk", kSite, Figure::x_bare, 1.4, 0.8},
    {"filter to redraw, page", kSite, Figure::x_bare, 1.6, 1.0},
    {"filter to redraw, shape", kSite, Figure::x_bare, 3.2, 2.4},
};

}  // namespace

std::span<const Limit> Limits() { return kLimits; }

std::string_view NameOf(Figure figure) {
  switch (figure) {
    case Figure::x_bare:
      return "x bare";
    case Figure::peak_mb:
      return "peak MB";
    case Figure::syncs:
      return "syncs";
  }
  return "";
}

double FigureOf(const Figures& figures, Figure figure) {
  switch (figure) {
    case Figure::x_bare:
      return figures.x_bare.middle;
    case Figure::peak_mb:
      return figures.peak_mb;
    case Figure::syncs:
      // Limits of syncs are those of works that count them.
      return static_cast<double>(figures.counts.value().syncs);
  }
  return 0.0;
}

}  // namespace rbt::bench

// SPDX-License-Identifier: MIT
#pragma once

#include "support/kilograms.h"
#include "support/schedule_site.h"
#include "tally/rows/bar_row_samples.h"

namespace rbt::test {

/// A site whose rows stand on a floor each: D19, 2 bars of 6.0 m, 27 kg in stock and installed.
class FloorSite : public ScheduleSite {
 public:
  using ScheduleSite::ScheduleSite;

  void Add(std::int32_t floor, Fields fields = {}) {
    fields.emplace_back("階", Number(floor));
    AddRow(fields);
  }
};

inline BarRow AtPart(BarRow row, std::int32_t part) {
  row.part = part;
  return row;
}

}  // namespace rbt::test

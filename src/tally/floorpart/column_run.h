// SPDX-License-Identifier: MIT
#pragma once

#include "data/bar_tables.h"

namespace rbt {

/// The eighteen stock columns that the sums of the floor and part tallies run over: from 3.5 m to 12.0 m, or
/// from 4.0 m to 13.0 m where 13 m is in use.
struct ColumnRun {
  int first = 0;
  int last = kColumnsTo12m - 1;

  friend bool operator==(const ColumnRun&, const ColumnRun&) = default;
};

/// `use_13m`: the setting 定尺13有無 is 1.
constexpr ColumnRun ColumnsInUse(bool use_13m) {
  return use_13m ? ColumnRun{kColumn13m - kColumnsTo12m + 1, kColumn13m} : ColumnRun{};
}

}  // namespace rbt

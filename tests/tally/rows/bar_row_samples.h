// SPDX-License-Identifier: MIT
#pragma once

#include "tally/rows/bar_row.h"

namespace rbt::test {

/// D19 (row 3), 4 pieces of 3.0 m out of 2 bars of 6.0 m (column 5).
inline BarRow D19Row() {
  BarRow row;
  row.page = 3;
  row.line = 12;
  row.part = 1;
  row.diameter_code = 19;
  row.shape = 1;
  row.pieces = 4;
  row.cut_length_mm = 3000;
  row.stock_length_m = 6.0;
  row.stock_bars = 2;
  return row;
}

/// U9 (row 14), 10 hoops of 1.5 m out of stock of 5.5 m.
inline BarRow U9Row() {
  BarRow row = D19Row();
  row.diameter_code = 9;
  row.pieces = 10;
  row.cut_length_mm = 1500;
  row.stock_length_m = 5.5;
  row.stock_bars = 4;
  row.kind = 2;
  return row;
}

inline BarRow D19Hoop() {
  BarRow row = D19Row();
  row.shape = kWeldedHoopShape;
  row.welds = 4;
  return row;
}

}  // namespace rbt::test

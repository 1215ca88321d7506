// SPDX-License-Identifier: MIT
#include "tally/floorpart/floor_marginals.h"

namespace rbt {

Currency StockOfFloor(const FloorTables& tables, int f, int r, int c) {
  Currency sum;
  for (int p = kFirstPart; p < kPartEntries; ++p) sum += tables.KaiBuiTeiJyuuryo[f][p][r][c];
  return sum;
}

Currency StockOfFloor(const FloorTables& tables, int f, int r, ColumnRun columns) {
  Currency sum;
  for (int c = columns.first; c <= columns.last; ++c) sum += StockOfFloor(tables, f, r, c);
  return sum;
}

Currency WeightOfFloorPart(const FloorTables& tables, int f, int p, int r, ColumnRun columns) {
  Currency sum;
  for (int c = columns.first; c <= columns.last; ++c) sum += tables.KaiBuiJyuuryo[f][p][r][c];
  return sum;
}

Currency WeightOfPart(const FloorTables& tables, int p, int r, ColumnRun columns) {
  Currency sum;
  for (int f = 0; f < kFloorCount; ++f) sum += WeightOfFloorPart(tables, f, p, r, columns);
  return sum;
}

Currency WeightOfDiameter(const FloorTables& tables, int r) {
  Currency sum;
  for (int f = 0; f < kFloorCount; ++f) sum += tables.KaiTaisaGoukei[f][r];
  return sum;
}

}  // namespace rbt

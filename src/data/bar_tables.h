// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace rbt {

/// Columns of a tally: 18 from 3.5 m to 12.0 m, then 13.0 m, which only some sums and sheets take in.
inline constexpr int kColumnsTo12m = 18;
inline constexpr int kColumn13m = 18;
inline constexpr int kStockColumns = 19;
/// Columns that sums, screens and sheets take in; the last one where the setting 定尺13有無 is 1.
constexpr int StockColumnsInUse(bool with_13m) { return with_13m ? kStockColumns : kColumnsTo12m; }

/// Column 0 to 18 of a stock length in metres, by exact comparison; -1 for a length without a column, such as
/// 12.5.
int StockIndex(double metres);
/// Metres of a stock column, -1.0 outside 0 to 18.
double StockMetres(int stock_column);

/// Kilograms of one stock bar of diameter row `d` (0..17) and stock column `l` (0..18), rounded to three
/// significant figures, halves to the even figure: the double nearest to that decimal. Faults: subscript out
/// of range.
double BarWeight(int d, int l);
/// Kilograms of one bar of any length above 0 in metres, with a column or without, rounded likewise.
double BarWeightOf(int d, double metres);
/// `BarWeight` from the table of 12 rows of 18 columns that the shape by page and line tally reads at row x
/// 18 + column: the 13.0 m column (18) gives the 3.5 m weight of the next diameter, and of D51 it faults.
/// Faults: subscript out of range.
double Get_BarWeightTbl(std::int16_t row, std::int16_t column);

}  // namespace rbt

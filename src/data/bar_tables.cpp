// SPDX-License-Identifier: MIT
#include "data/bar_tables.h"

#include <cmath>
#include <string>
#include <string_view>

#include "data/diameters.h"
#include "platform/numbers/checked_array.h"
#include "platform/numbers/number_words.h"

namespace rbt {
namespace {

/// The decimal text has its point as second character, so the fifth is the third decimal: a 5 there with
/// nothing behind it is an exact half, which a binary fraction cannot be trusted to be.
bool IsExactHalf(std::string_view text) { return text[4] == '5' && (text.size() == 5 || text[5] == '0'); }

bool IsOdd(char digit) { return (digit - '0') % 2 != 0; }

/// `x` with two decimals, in hundredths, halves to the even figure as the decimal text shows them.
double RoundedHundredths(double x) {
  const std::string text = ShortestDecimal(x);
  if (text.size() < 5 || !IsExactHalf(text)) return Round(x * 100.0);
  return IsOdd(text[3]) ? Int(x * 100.0 + 0.999) : Int(x * 100.0);
}

double ThreeFigures(double kilograms) {
  const int exponent = static_cast<int>(Int(std::log10(kilograms)));
  const double hundredths = RoundedHundredths(kilograms / std::pow(10.0, exponent));
  // One division by a power of ten gives the double nearest to the decimal; a product of two rounded factors
  // would give 11.899999999999999 for 11.9.
  return exponent <= 2 ? hundredths / std::pow(10.0, 2 - exponent)
                       : hundredths * std::pow(10.0, exponent - 2);
}

using BarWeights = Checked2D<double, kDiameterRows, kStockColumns>;

BarWeights ComputeBarWeights() {
  BarWeights weights;
  for (int d = 0; d < kDiameterRows; ++d) {
    for (int l = 0; l < kStockColumns; ++l) weights[d][l] = BarWeightOf(d, StockMetres(l));
  }
  return weights;
}

}  // namespace

int StockIndex(double metres) {
  if (metres == 13.0) return kColumn13m;
  const double column = (metres - 3.5) * 2.0;  // exact for every half metre, so a whole number only for those
  const bool has_column =
      column >= 0.0 && column < kColumnsTo12m && column == std::floor(column) && metres == 3.5 + column / 2.0;
  return has_column ? static_cast<int>(column) : -1;
}

double StockMetres(int stock_column) {
  if (stock_column < 0 || stock_column >= kStockColumns) return -1.0;
  return stock_column == kColumn13m ? 13.0 : 3.5 + stock_column * 0.5;
}

double BarWeight(int d, int l) {
  static const BarWeights weights = ComputeBarWeights();
  return weights[d][l];
}

double BarWeightOf(int d, double metres) { return ThreeFigures(metres * UnitWeight(d)); }

double Get_BarWeightTbl(std::int16_t row, std::int16_t column) {
  const int index = row * kColumnsTo12m + column;
  if (index < 0 || index >= kDeformedRows * kColumnsTo12m) {
    throw Fault(FaultKind::subscript_out_of_range, "bar weight " + std::to_string(index));
  }
  return BarWeight(index / kColumnsTo12m, index % kColumnsTo12m);
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "data/bar_tables.h"

#include <cmath>
#include <string>

#include "data/materials.h"
#include "platform/numbers/checked_array.h"
#include "platform/numbers/number_words.h"

namespace rbt {
namespace {

struct Diameter {
  int code;
  std::string_view label;
  double kilograms_per_metre;
};

constexpr Diameter kDiameters[kDiameterRows] = {
    {10, "D10", 0.56}, {13, "D13", 0.995}, {16, "D16", 1.56}, {19, "D19", 2.25}, {22, "D22", 3.04},
    {25, "D25", 3.98}, {29, "D29", 5.04},  {32, "D32", 6.23}, {35, "D35", 7.51}, {38, "D38", 8.95},
    {41, "D41", 10.5}, {51, "D51", 15.9},  {6, "U 6", 0.235}, {7, "U 7", 0.315}, {9, "U 9", 0.5},
    {11, "U11", 0.71}, {12, "U12", 0.98},  {16, "U16", 1.56},
};

constexpr bool RowsFollowTheVocabulary() {
  for (std::size_t d = 0; d < kDeformedDiameters.size(); ++d) {
    if (kDiameters[d].code != kDeformedDiameters[d]) return false;
  }
  for (std::size_t u = 0; u < kUlbonDiameters.size(); ++u) {
    if (kDiameters[kDeformedDiameters.size() + u].code != kUlbonDiameters[u]) return false;
  }
  return kDeformedDiameters.size() + kUlbonDiameters.size() == kDiameterRows;
}
static_assert(RowsFollowTheVocabulary());

const Diameter& RowOf(int d) {
  if (d < 0 || d >= kDiameterRows) {
    throw Fault(FaultKind::subscript_out_of_range, "diameter row " + std::to_string(d));
  }
  return kDiameters[d];
}

int FindRow(int diameter_code, int first, int last) {
  for (int d = first; d <= last; ++d) {
    if (kDiameters[d].code == diameter_code) return d;
  }
  return -1;
}

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
    for (int l = 0; l < kStockColumns; ++l) weights[d][l] = ThreeFigures(StockMetres(l) * UnitWeight(d));
  }
  return weights;
}

}  // namespace

int DiameterIndex(int diameter_code) { return FindRow(diameter_code, 0, kDeformedRows - 1); }

int UlbonIndex(int diameter_code) { return FindRow(diameter_code, kDeformedRows, kDiameterRows - 1); }

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

int DiameterCode(int d) { return RowOf(d).code; }

std::string_view DiameterLabel(int d) { return RowOf(d).label; }

double UnitWeight(int d) { return RowOf(d).kilograms_per_metre; }

double BarWeight(int d, int l) {
  static const BarWeights weights = ComputeBarWeights();
  return weights[d][l];
}

double Get_BarWeightTbl(std::int16_t row, std::int16_t column) {
  const int index = row * kColumnsTo12m + column;
  if (index < 0 || index >= kDeformedRows * kColumnsTo12m) {
    throw Fault(FaultKind::subscript_out_of_range, "bar weight " + std::to_string(index));
  }
  return BarWeight(index / kColumnsTo12m, index % kColumnsTo12m);
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace rbt {

/// A diameter that bars come in.
struct Diameter {
  int code;  ///< column `太さ`; 16 is deformed or Ulbon, `予備2` of the row tells
  std::string_view label;
  double kilograms_per_metre;  ///< unit weight by the bar standard
  bool is_ulbon;               ///< thin high-strength bars; else deformed
};

/// Rows of a tally: 0 to 11 the deformed diameters, 12 to 17 the Ulbon ones.
inline constexpr int kDeformedRows = 12;
inline constexpr int kDiameterRows = 18;

/// The diameters by their row.
inline constexpr std::array<Diameter, kDiameterRows> kDiameters{{
    {10, "D10", 0.56, false},
    {13, "D13", 0.995, false},
    {16, "D16", 1.56, false},
    {19, "D19", 2.25, false},
    {22, "D22", 3.04, false},
    {25, "D25", 3.98, false},
    {29, "D29", 5.04, false},
    {32, "D32", 6.23, false},
    {35, "D35", 7.51, false},
    {38, "D38", 8.95, false},
    {41, "D41", 10.5, false},
    {51, "D51", 15.9, false},
    {6, "U 6", 0.235, true},
    {7, "U 7", 0.315, true},
    {9, "U 9", 0.5, true},
    {11, "U11", 0.71, true},
    {12, "U12", 0.98, true},
    {16, "U16", 1.56, true},
}};

inline constexpr std::span<const Diameter, kDeformedRows> kDeformedDiameters =
    std::span(kDiameters).first<kDeformedRows>();
inline constexpr std::span<const Diameter, kDiameterRows - kDeformedRows> kUlbonDiameters =
    std::span(kDiameters).subspan<kDeformedRows>();

static_assert(std::none_of(kDeformedDiameters.begin(), kDeformedDiameters.end(),
                           [](const Diameter& d) { return d.is_ulbon; }) &&
              std::all_of(kUlbonDiameters.begin(), kUlbonDiameters.end(),
                          [](const Diameter& d) { return d.is_ulbon; }));

/// The codes of the Ulbon diameters that no deformed bar has: 6, 7, 9, 11, 12.
inline constexpr auto kUlbonOnlyCodes = [] {
  std::array<int, kUlbonDiameters.size() - 1> codes{};
  auto next = codes.begin();
  for (const Diameter& ulbon : kUlbonDiameters) {
    const bool both = std::any_of(kDeformedDiameters.begin(), kDeformedDiameters.end(),
                                  [&](const Diameter& deformed) { return deformed.code == ulbon.code; });
    if (!both) *next++ = ulbon.code;
  }
  return codes;
}();

/// Row 0 to 11 of a deformed diameter code (10, 13, ... 51), -1 for any other.
int DiameterIndex(int diameter_code);
/// Row 12 to 17 of an Ulbon diameter code (6, 7, 9, 11, 12, 16), -1 for any other.
int UlbonIndex(int diameter_code);

/// Diameter code of a row (0..17): 10, 13, ... 51, 6, 7, ... 16. Faults: subscript out of range.
int DiameterCode(int diameter_row);
/// "D10" to "D51", "U 6" to "U16". Faults: subscript out of range.
std::string_view DiameterLabel(int diameter_row);
/// Kilograms of one metre of a diameter row (0..17). Faults: subscript out of range.
double UnitWeight(int diameter_row);

}  // namespace rbt

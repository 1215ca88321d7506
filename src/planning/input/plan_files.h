// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rbt::planning {

/// The CSV files that a plan is made from: UTF-8, a header line with the names of the columns, `#` starts a
/// comment. Faults name the line: `Refusal`.

/// Bars and pieces are no longer than this.
inline constexpr int kLongestMm = 1'000'000;

/// A line of a file of pieces: length,count[,diameter[,kind[,mark]]].
struct PieceLine {
  int line = 0;            ///< in the file, from 1
  int length = 0;          ///< mm, 1 to kLongestMm
  std::int64_t count = 0;  ///< at least 0
  int diameter = 0;        ///< 0: none given, else a deformed diameter
  int kind = 1;
  std::string mark;

  friend bool operator==(const PieceLine&, const PieceLine&) = default;
};
std::vector<PieceLine> ParsePieces(std::string_view text);

/// A line of a file of lengths: diameter,length,price,min_kg; the last two may be empty.
struct LengthLine {
  int diameter = 0;  ///< 0: all
  int length = 0;
  std::optional<std::int64_t> price;  ///< yen a tonne, at least 1
  std::int64_t least_kg = 0;

  friend bool operator==(const LengthLine&, const LengthLine&) = default;
};
/// No length stands twice for a diameter.
std::vector<LengthLine> ParseLengths(std::string_view text);

/// A line of a file of rest bars: diameter,kind,length,count.
struct RestLine {
  int diameter = 0;
  int kind = 1;
  int length = 0;
  std::int64_t count = 0;

  friend bool operator==(const RestLine&, const RestLine&) = default;
};
std::vector<RestLine> ParseRests(std::string_view text);

}  // namespace rbt::planning

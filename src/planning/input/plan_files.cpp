// SPDX-License-Identifier: MIT
#include "planning/input/plan_files.h"

#include <algorithm>
#include <array>
#include <limits>
#include <set>

#include "planning/input/csv_table.h"
#include "planning/problem/weights.h"

namespace rbt::planning {
namespace {

constexpr std::int64_t kMostPieces = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t kHighestPrice = 1'000'000'000;
constexpr std::int64_t kHeaviestLot = 1'000'000'000;
constexpr std::int64_t kHighestKind = 1'000'000;

int Narrow(std::int64_t number) { return static_cast<int>(number); }

int DiameterOf(const CsvLine& line, std::size_t column) {
  const std::int64_t diameter = line.WholeOr(column, 0, kLongestMm, 0);
  if (!IsPlannedDiameter(Narrow(diameter))) line.Refuse("there is no D" + std::to_string(diameter));
  return Narrow(diameter);
}

int KindOf(const CsvLine& line, std::size_t column) {
  return Narrow(std::max<std::int64_t>(1, line.WholeOr(column, 0, kHighestKind, 1)));
}

}  // namespace

std::vector<PieceLine> ParsePieces(std::string_view text) {
  static constexpr std::array<std::string_view, 5> kColumns{"length", "count", "diameter", "kind", "mark"};
  std::vector<PieceLine> pieces;
  for (const CsvLine& line : ReadCsvTable(text, kColumns, 2)) {
    PieceLine piece;
    piece.line = line.Number();
    piece.length = Narrow(line.Whole(0, 1, kLongestMm));
    piece.count = line.Whole(1, 0, kMostPieces);
    piece.diameter = DiameterOf(line, 2);
    piece.kind = KindOf(line, 3);
    piece.mark = line.Text(4);
    pieces.push_back(std::move(piece));
  }
  return pieces;
}

std::vector<LengthLine> ParseLengths(std::string_view text) {
  static constexpr std::array<std::string_view, 4> kColumns{"diameter", "length", "price", "min_kg"};
  std::vector<LengthLine> lengths;
  std::set<std::pair<int, int>> seen;
  for (const CsvLine& line : ReadCsvTable(text, kColumns, kColumns.size())) {
    LengthLine length;
    length.diameter = DiameterOf(line, 0);
    length.length = Narrow(line.Whole(1, 1, kLongestMm));
    if (!line.IsEmpty(2)) length.price = line.Whole(2, 1, kHighestPrice);
    length.least_kg = line.WholeOr(3, 0, kHeaviestLot, 0);
    if (!seen.emplace(length.diameter, length.length).second) {
      line.Refuse("D" + std::to_string(length.diameter) + " " + std::to_string(length.length) +
                  " stands twice");
    }
    lengths.push_back(length);
  }
  return lengths;
}

std::vector<RestLine> ParseRests(std::string_view text) {
  static constexpr std::array<std::string_view, 4> kColumns{"diameter", "kind", "length", "count"};
  std::vector<RestLine> rests;
  for (const CsvLine& line : ReadCsvTable(text, kColumns, kColumns.size())) {
    RestLine rest;
    rest.diameter = DiameterOf(line, 0);
    rest.kind = KindOf(line, 1);
    rest.length = Narrow(line.Whole(2, 1, kLongestMm));
    rest.count = line.Whole(3, 0, kMostPieces);
    rests.push_back(rest);
  }
  return rests;
}

}  // namespace rbt::planning

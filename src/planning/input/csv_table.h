// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace rbt::planning {

/// A line of a CSV table. Every read names the line in its refusal.
class CsvLine {
 public:
  CsvLine(int number, std::vector<std::string> cells, std::span<const std::string_view> columns)
      : number_(number), cells_(std::move(cells)), columns_(columns) {}

  int Number() const { return number_; }
  /// The text of a column without blanks round it, empty where the line has fewer cells.
  std::string_view Text(std::size_t column) const;
  bool IsEmpty(std::size_t column) const { return Text(column).empty(); }
  /// A whole number from `least` to `most`; an empty cell is refused.
  std::int64_t Whole(std::size_t column, std::int64_t least, std::int64_t most) const;
  /// The same; an empty cell is `otherwise`.
  std::int64_t WholeOr(std::size_t column, std::int64_t least, std::int64_t most,
                       std::int64_t otherwise) const;
  /// Refuses the line.
  [[noreturn]] void Refuse(const std::string& why) const;

 private:
  int number_;
  std::vector<std::string> cells_;
  std::span<const std::string_view> columns_;
};

/// The lines of a CSV text behind its header, comments and empty lines left out. The header names the columns
/// in their order, at least the first `required` of them; lines have no more cells than the header, empty
/// ones of trailing commas aside. Cells in double quotes may hold commas, doubled quotes and `#`. Refuses
/// what is otherwise.
std::vector<CsvLine> ReadCsvTable(std::string_view text, std::span<const std::string_view> columns,
                                  std::size_t required);

}  // namespace rbt::planning

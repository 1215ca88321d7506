// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace rbt::planning {

/// True when the program was built with the library that solves linear programs.
bool LinearProgramsAreSolved();

/// min cost x, A x >= need, x >= 0, columns added as they are found; each solve starts where the last one
/// ended. Without the library every solve fails.
class CoverLp {
 public:
  using Entries = std::span<const std::pair<int, double>>;

  /// Rows that need `need` at least; a negative entry and need say "at most".
  explicit CoverLp(const std::vector<double>& need);
  ~CoverLp();
  CoverLp(const CoverLp&) = delete;
  CoverLp& operator=(const CoverLp&) = delete;

  /// Columns are counted from 0 as they come.
  void AddColumn(double cost, Entries entries);
  /// A column that may not be used is 0.
  void Allow(int column, bool allowed);
  void SetNeed(int row, double need);

  /// False when there is no optimum, because the limits contradict each other or for reasons of arithmetic.
  bool Solve();
  /// What the last solve took, in steps of about a nanosecond.
  std::int64_t Steps() const;
  /// After a solve: drops the columns that would raise the cost most, so that about so many stay. Returns
  /// their indices, rising; the columns behind move up.
  std::vector<int> DropDearest(std::size_t keep);

  /// Of the last solve.
  double Cost() const;
  std::span<const double> Prices() const;  ///< dual value of each row
  std::span<const double> Values() const;  ///< of each column

 private:
  struct Model;
  std::unique_ptr<Model> model_;
};

}  // namespace rbt::planning

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "planning/solve/linear_program.h"

namespace rbt::planning {

/// True when the program was built with the library that solves linear programs, which is loaded for the
/// first one.
bool LinearProgramsAreSolved();

/// min cost x, A x >= need, x >= 0, columns added as they are found; each solve starts where the last one
/// ended. Without the library every solve fails.
class CoverLp {
 public:
  using Entries = LinearProgram::Entries;

  /// Rows that need `need` at least; a negative entry and need say "at most". Throws `file` where the library
  /// cannot be loaded.
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
  std::unique_ptr<LinearProgram> program_;
};

}  // namespace rbt::planning

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace rbt::planning {

/// What `CoverLp` hands its calls on to: an object of the library that solves linear programs.
class LinearProgram {
 public:
  using Entries = std::span<const std::pair<int, double>>;

  LinearProgram() = default;
  LinearProgram(const LinearProgram&) = delete;
  LinearProgram& operator=(const LinearProgram&) = delete;
  virtual ~LinearProgram() = default;

  virtual void AddColumn(double cost, Entries entries) = 0;
  virtual void Allow(int column, bool allowed) = 0;
  virtual void SetNeed(int row, double need) = 0;
  virtual bool Solve() = 0;
  virtual std::int64_t Steps() const = 0;
  virtual std::vector<int> DropDearest(std::size_t keep) = 0;
  virtual double Cost() const = 0;
  virtual std::span<const double> Prices() const = 0;
  virtual std::span<const double> Values() const = 0;
};

/// That library, from the folder of the program.
inline constexpr const char* kLpLibrary = "../lib/rbtally/rbtally_lp.so";

/// All that such a library has. Nothing else of it is seen outside, and no exception leaves it.
inline constexpr const char* kLpLibraryFunction = "rbtally_make_linear_program";

/// A program over rows that need `need` at least; the caller's. Null where the library is not of the caller's
/// version: the two know the rest by its layout in memory.
using LpLibraryFunction = LinearProgram*(const char* version, const std::vector<double>& need) noexcept;

}  // namespace rbt::planning

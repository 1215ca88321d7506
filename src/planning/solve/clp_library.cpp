// SPDX-License-Identifier: MIT
#include <Clp_C_Interface.h>
#include <algorithm>
#include <limits>
#include <memory>
#include <string_view>
#include <type_traits>

#include "planning/solve/linear_program.h"

namespace rbt::planning {
namespace {

constexpr double kNoLimit = std::numeric_limits<double>::max();  // what the library takes for infinity
constexpr double kSame = 1e-6;                                   // costs nearer than this are not told apart
constexpr int kBasic = 1;
constexpr std::int64_t kStepsPerRow = 100;  // of a pivot

class ClpProgram : public LinearProgram {
 public:
  explicit ClpProgram(const std::vector<double>& need) : rows_(static_cast<int>(need.size())) {
    Clp_setLogLevel(simplex_, 0);
    Clp_resize(simplex_, rows_, 0);
    std::copy(need.begin(), need.end(), Clp_rowLower(simplex_));
    std::fill_n(Clp_rowUpper(simplex_), rows_, kNoLimit);
  }
  ClpProgram(const ClpProgram&) = delete;
  ClpProgram& operator=(const ClpProgram&) = delete;
  ~ClpProgram() override { Clp_deleteModel(simplex_); }

  void AddColumn(double cost, Entries entries) override {
    for (const auto& [row, value] : entries) {
      new_rows_.push_back(row);
      new_values_.push_back(value);
    }
    new_costs_.push_back(cost);
    new_starts_.push_back(static_cast<CoinBigIndex>(new_rows_.size()));
  }

  void Allow(int column, bool allowed) override {
    HandOverColumns();
    Clp_columnUpper(simplex_)[column] = allowed ? kNoLimit : 0.0;
    limits_changed_ = true;
  }

  void SetNeed(int row, double need) override {
    Clp_rowLower(simplex_)[row] = need;
    limits_changed_ = true;
  }

  bool Solve() override {
    HandOverColumns();
    if (limits_changed_) {
      Clp_dual(simplex_, 0);
    } else {
      Clp_primal(simplex_, 0);
    }
    limits_changed_ = false;
    return Clp_status(simplex_) == 0;
  }

  std::int64_t Steps() const override {
    return (Clp_numberIterations(simplex_) + std::int64_t{1}) * rows_ * kStepsPerRow;
  }

  std::vector<int> DropDearest(std::size_t keep) override {
    const int columns = Clp_numberColumns(simplex_);
    if (static_cast<std::size_t>(columns) <= keep) return {};
    const double* rises = Clp_dualColumnSolution(simplex_);
    std::vector<double> sorted(rises, rises + columns);
    const auto at = sorted.begin() + static_cast<std::ptrdiff_t>(keep);
    std::nth_element(sorted.begin(), at, sorted.end());
    const double limit = std::max(*at, kSame);
    std::vector<int> gone;
    for (int c = 0; c < columns; ++c) {
      if (rises[c] > limit && Clp_getColumnStatus(simplex_, c) != kBasic) gone.push_back(c);
    }
    if (!gone.empty()) Clp_deleteColumns(simplex_, static_cast<int>(gone.size()), gone.data());
    return gone;
  }

  double Cost() const override { return Clp_objectiveValue(simplex_); }

  std::span<const double> Prices() const override {
    return {Clp_dualRowSolution(simplex_), static_cast<std::size_t>(rows_)};
  }

  std::span<const double> Values() const override {
    return {Clp_primalColumnSolution(simplex_), static_cast<std::size_t>(Clp_numberColumns(simplex_))};
  }

 private:
  void HandOverColumns() {
    if (new_costs_.empty()) return;
    const std::vector<double> lower(new_costs_.size(), 0.0);
    const std::vector<double> upper(new_costs_.size(), kNoLimit);
    Clp_addColumns(simplex_, static_cast<int>(new_costs_.size()), lower.data(), upper.data(),
                   new_costs_.data(), new_starts_.data(), new_rows_.data(), new_values_.data());
    new_costs_.clear();
    new_starts_.assign(1, 0);
    new_rows_.clear();
    new_values_.clear();
  }

  Clp_Simplex* simplex_ = Clp_newModel();
  int rows_;
  bool limits_changed_ = true;  ///< then the last solution is none any more, but its prices are sound
  // Columns not handed over yet: one by one would copy the matrix each time.
  std::vector<double> new_costs_;
  std::vector<CoinBigIndex> new_starts_{0};
  std::vector<int> new_rows_;
  std::vector<double> new_values_;
};

}  // namespace
}  // namespace rbt::planning

extern "C" __attribute__((visibility("default"))) rbt::planning::LinearProgram* rbtally_make_linear_program(
    const char* version, const std::vector<double>& need) noexcept {
  if (version != std::string_view(RBTALLY_VERSION)) return nullptr;
  return std::make_unique<rbt::planning::ClpProgram>(need).release();
}

static_assert(std::is_same_v<decltype(rbtally_make_linear_program), rbt::planning::LpLibraryFunction>);

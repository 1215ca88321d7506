// SPDX-License-Identifier: MIT
#include <Clp_C_Interface.h>
#include <algorithm>
#include <limits>

#include "planning/solve/cover_lp.h"

namespace rbt::planning {
namespace {

constexpr double kNoLimit = std::numeric_limits<double>::max();  // what the library takes for infinity
constexpr double kSame = 1e-6;                                   // costs nearer than this are not told apart
constexpr int kBasic = 1;
constexpr std::int64_t kStepsPerRow = 100;  // of a pivot

}  // namespace

bool LinearProgramsAreSolved() { return true; }

struct CoverLp::Model {
  Clp_Simplex* simplex = Clp_newModel();
  int rows = 0;
  bool limits_changed = true;  ///< then the last solution is none any more, but its prices are sound
  // Columns not handed over yet: one by one would copy the matrix each time.
  std::vector<double> new_costs;
  std::vector<CoinBigIndex> new_starts{0};
  std::vector<int> new_rows;
  std::vector<double> new_values;

  Model() = default;
  Model(const Model&) = delete;
  Model& operator=(const Model&) = delete;
  ~Model() { Clp_deleteModel(simplex); }

  void HandOverColumns() {
    if (new_costs.empty()) return;
    const std::vector<double> lower(new_costs.size(), 0.0);
    const std::vector<double> upper(new_costs.size(), kNoLimit);
    Clp_addColumns(simplex, static_cast<int>(new_costs.size()), lower.data(), upper.data(), new_costs.data(),
                   new_starts.data(), new_rows.data(), new_values.data());
    new_costs.clear();
    new_starts.assign(1, 0);
    new_rows.clear();
    new_values.clear();
  }
};

CoverLp::CoverLp(const std::vector<double>& need) : model_(std::make_unique<Model>()) {
  Clp_Simplex* simplex = model_->simplex;
  Clp_setLogLevel(simplex, 0);
  model_->rows = static_cast<int>(need.size());
  Clp_resize(simplex, model_->rows, 0);
  std::copy(need.begin(), need.end(), Clp_rowLower(simplex));
  std::fill_n(Clp_rowUpper(simplex), model_->rows, kNoLimit);
}

CoverLp::~CoverLp() = default;

void CoverLp::AddColumn(double cost, Entries entries) {
  for (const auto& [row, value] : entries) {
    model_->new_rows.push_back(row);
    model_->new_values.push_back(value);
  }
  model_->new_costs.push_back(cost);
  model_->new_starts.push_back(static_cast<CoinBigIndex>(model_->new_rows.size()));
}

void CoverLp::Allow(int column, bool allowed) {
  model_->HandOverColumns();
  Clp_columnUpper(model_->simplex)[column] = allowed ? kNoLimit : 0.0;
  model_->limits_changed = true;
}

void CoverLp::SetNeed(int row, double need) {
  Clp_rowLower(model_->simplex)[row] = need;
  model_->limits_changed = true;
}

bool CoverLp::Solve() {
  model_->HandOverColumns();
  if (model_->limits_changed) {
    Clp_dual(model_->simplex, 0);
  } else {
    Clp_primal(model_->simplex, 0);
  }
  model_->limits_changed = false;
  return Clp_status(model_->simplex) == 0;
}

std::int64_t CoverLp::Steps() const {
  return (Clp_numberIterations(model_->simplex) + std::int64_t{1}) * model_->rows * kStepsPerRow;
}

std::vector<int> CoverLp::DropDearest(std::size_t keep) {
  const int columns = Clp_numberColumns(model_->simplex);
  if (static_cast<std::size_t>(columns) <= keep) return {};
  const double* rises = Clp_dualColumnSolution(model_->simplex);
  std::vector<double> sorted(rises, rises + columns);
  const auto at = sorted.begin() + static_cast<std::ptrdiff_t>(keep);
  std::nth_element(sorted.begin(), at, sorted.end());
  const double limit = std::max(*at, kSame);
  std::vector<int> gone;
  for (int c = 0; c < columns; ++c) {
    if (rises[c] > limit && Clp_getColumnStatus(model_->simplex, c) != kBasic) gone.push_back(c);
  }
  if (!gone.empty()) Clp_deleteColumns(model_->simplex, static_cast<int>(gone.size()), gone.data());
  return gone;
}

double CoverLp::Cost() const { return Clp_objectiveValue(model_->simplex); }

std::span<const double> CoverLp::Prices() const {
  return {Clp_dualRowSolution(model_->simplex), static_cast<std::size_t>(model_->rows)};
}

std::span<const double> CoverLp::Values() const {
  const int columns = Clp_numberColumns(model_->simplex);
  return {Clp_primalColumnSolution(model_->simplex), static_cast<std::size_t>(columns)};
}

}  // namespace rbt::planning

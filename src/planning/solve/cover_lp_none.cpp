// SPDX-License-Identifier: MIT
#include "planning/solve/cover_lp.h"

namespace rbt::planning {

bool LinearProgramsAreSolved() { return false; }

CoverLp::CoverLp(const std::vector<double>& /*need*/) {}
CoverLp::~CoverLp() = default;
void CoverLp::AddColumn(double /*cost*/, Entries /*entries*/) {}
void CoverLp::Allow(int /*column*/, bool /*allowed*/) {}
void CoverLp::SetNeed(int /*row*/, double /*need*/) {}
bool CoverLp::Solve() { return false; }
std::int64_t CoverLp::Steps() const { return 0; }
std::vector<int> CoverLp::DropDearest(std::size_t /*keep*/) { return {}; }
double CoverLp::Cost() const { return 0.0; }
std::span<const double> CoverLp::Prices() const { return {}; }
std::span<const double> CoverLp::Values() const { return {}; }

}  // namespace rbt::planning

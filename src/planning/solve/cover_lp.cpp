// SPDX-License-Identifier: MIT
#include "planning/solve/cover_lp.h"

#include "platform/system/own_library.h"

namespace rbt::planning {

namespace {

/// Loaded for the first program of the run; where it cannot be, each one throws.
std::unique_ptr<LinearProgram> MakeProgram(const std::vector<double>& need) {
  static const OwnLibrary library(kLpLibrary, "the solver of linear programs");
  static auto& make = *reinterpret_cast<LpLibraryFunction*>(library.Function(kLpLibraryFunction));
  std::unique_ptr<LinearProgram> program(make(RBTALLY_VERSION, need));
  if (program == nullptr) library.Refuse(RBTALLY_VERSION);
  return program;
}

}  // namespace

bool LinearProgramsAreSolved() { return true; }

CoverLp::CoverLp(const std::vector<double>& need) : program_(MakeProgram(need)) {}
CoverLp::~CoverLp() = default;
void CoverLp::AddColumn(double cost, Entries entries) { program_->AddColumn(cost, entries); }
void CoverLp::Allow(int column, bool allowed) { program_->Allow(column, allowed); }
void CoverLp::SetNeed(int row, double need) { program_->SetNeed(row, need); }
bool CoverLp::Solve() { return program_->Solve(); }
std::int64_t CoverLp::Steps() const { return program_->Steps(); }
std::vector<int> CoverLp::DropDearest(std::size_t keep) { return program_->DropDearest(keep); }
double CoverLp::Cost() const { return program_->Cost(); }
std::span<const double> CoverLp::Prices() const { return program_->Prices(); }
std::span<const double> CoverLp::Values() const { return program_->Values(); }

}  // namespace rbt::planning

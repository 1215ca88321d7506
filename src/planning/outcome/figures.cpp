// SPDX-License-Identifier: MIT
#include "planning/outcome/figures.h"

#include <algorithm>
#include <set>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "planning/problem/weights.h"
#include "planning/solve/row_plans.h"
#include "platform/fault.h"

namespace rbt::planning {
namespace {

TallyFigures FiguresOf(const TallyTable& closed) {
  return {closed.TotalStockWeight, closed.TotalInstalledWeight, closed.LossRatePercent};
}

/// Adds up what is bought and cut, and what the tally would show of it.
class Sum {
 public:
  explicit Sum(const Problem& problem) : rule_(problem.options.bar) {
    if (problem.site_tally) {
      table_ = problem.site_tally->kept;
      closing_ = problem.site_tally->closing;
    }
  }

  void Buy(int diameter, int mm, std::int64_t bars) {
    figures_.bars += bars;
    figures_.steel_weight += Product(Product(UnitMilligrams(diameter), mm), bars);
    figures_.table_weight += Product(TableMilligrams(diameter, mm), bars);
    if (!table_) return;
    const int d = DiameterIndex(diameter);
    const int l = StockIndex(mm / 1000.0);
    table_->StockWeight[d][l] += Currency::FromDouble(BarWeight(d, l) * static_cast<double>(bars));
  }

  void Cut(int mm, const Laid& laid, std::int64_t bars) {
    figures_.cuts += Product(CutsOnBar(rule_, mm, laid), bars);
  }

  void CutAll(const BarsOfOneCut& bars) {
    Cut(bars.stock_mm, {bars.per_bar, std::int64_t{bars.cut_mm} * bars.per_bar}, bars.full_bars);
    if (bars.on_last_bar == 0) return;
    Cut(bars.stock_mm, {bars.on_last_bar, std::int64_t{bars.cut_mm} * bars.on_last_bar}, 1);
  }

  Figures Take(Milligrams installed) {
    figures_.loss_percent =
        PercentAbove(static_cast<double>(figures_.steel_weight), static_cast<double>(installed));
    if (table_) {
      CloseSums(*table_, closing_);
      figures_.tally = FiguresOf(*table_);
    }
    return figures_;
  }

 private:
  BarRule rule_;
  std::optional<TallyTable> table_;
  ClosingRules closing_;
  Figures figures_;
};

const Supply& SupplyOf(const Problem& problem, const Group& group) { return problem.supplies[group.supply]; }

}  // namespace

std::int64_t Product(std::int64_t a, std::int64_t b) {
  std::int64_t product = 0;
  if (__builtin_mul_overflow(a, b, &product)) throw Fault(FaultKind::overflow, "figures of a plan");
  return product;
}

double PercentAbove(double most, double least) { return least == 0.0 ? 0.0 : (most / least - 1.0) * 100.0; }

Laid LaidOf(const Pattern& pattern) {
  Laid laid;
  for (const auto& [cut, pieces] : pattern.pieces) {
    laid.pieces += pieces;
    laid.mm += std::int64_t{cut} * pieces;
  }
  return laid;
}

Milligrams InstalledWeight(const Problem& problem) {
  Milligrams installed = 0;
  for (const Group& group : problem.groups) {
    const Milligrams unit = UnitMilligrams(SupplyOf(problem, group).steel.diameter);
    for (const Cut& cut : group.cuts) installed += Product(Product(unit, cut.mm), cut.count);
  }
  return installed;
}

std::optional<Figures> ScheduleFigures(const Problem& problem) {
  if (!problem.site_tally) return std::nullopt;
  Sum sum(problem);
  for (const Group& group : problem.groups) {
    for (const Cut& cut : group.cuts) {
      for (const PlannedRow& row : cut.rows) {
        const BarsOfOneCut bars = CutAlone(problem.options.bar, row.own_mm, cut.mm, row.pieces);
        sum.Buy(SupplyOf(problem, group).steel.diameter, row.own_mm, std::max(row.own_bars, bars.Bars()));
        sum.CutAll(bars);
      }
    }
  }
  Figures figures = sum.Take(InstalledWeight(problem));
  figures.tally = FiguresOf(problem.site_tally->schedule);
  return figures;
}

Figures PerRowFigures(const Problem& problem) {
  Sum sum(problem);
  for (const Group& group : problem.groups) {
    const Supply& supply = SupplyOf(problem, group);
    for (const Cut& cut : group.cuts) {
      const BarsOfOneCut bars = *CutFromBestLength(problem.options.bar, supply, cut);
      sum.Buy(supply.steel.diameter, bars.stock_mm, bars.Bars());
      sum.CutAll(bars);
    }
  }
  return sum.Take(InstalledWeight(problem));
}

PlanFigures FiguresOfPlan(const Problem& problem, const Plan& plan) {
  Sum sum(problem);
  PlanFigures figures;
  std::set<int> lengths;
  for (std::size_t g = 0; g < plan.groups.size(); ++g) {
    const int diameter = SupplyOf(problem, problem.groups[g]).steel.diameter;
    for (const Pattern& pattern : plan.groups[g].patterns) {
      const Laid laid = LaidOf(pattern);
      sum.Cut(pattern.stock_mm, laid, pattern.bars);
      const std::int64_t left = LeftMm(problem.options.bar, pattern.stock_mm, laid);
      if (left >= problem.options.usable) {
        figures.usable_weight += Product(Product(UnitMilligrams(diameter), left), pattern.bars);
      }
      if (pattern.rest) continue;
      sum.Buy(diameter, pattern.stock_mm, pattern.bars);
      lengths.insert(pattern.stock_mm);
    }
    figures.patterns += static_cast<std::int64_t>(plan.groups[g].patterns.size());
  }
  figures.lengths = static_cast<std::int64_t>(lengths.size());
  figures.common = sum.Take(InstalledWeight(problem));
  return figures;
}

}  // namespace rbt::planning

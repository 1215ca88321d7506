// SPDX-License-Identifier: MIT
// Times the cutting plan on demonstration sites and on instances of one stock length, and tells what it
// loses: `loss_pct` the plan, `bound_pct` the bound that no plan gets below.

#include <algorithm>
#include <cmath>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench_site.h"
#include "cost.h"
#include "planning/input/make_problem.h"
#include "planning/make_plan.h"
#include "planning/outcome/outcome.h"
#include "session/planning/plan_request.h"
#include "shell/context/site_context.h"
#include "tally/rows/bulk_tally.h"

namespace rbt::bench {
namespace {

using planning::Effort;
using planning::Outcome;
using planning::Plan;
using planning::Problem;

PlanRequest AllLengths() {
  PlanRequest request;
  std::vector<int>& lengths = request.offer.lengths.emplace();
  for (int mm = 3500; mm <= 12000; mm += 500) lengths.push_back(mm);
  lengths.push_back(13000);
  return request;
}

/// The problem of a demonstration site, every length with a column allowed.
Problem DemoProblem(std::int64_t rows, int site, const PlanRequest& request) {
  BindSite(rows, site);
  Jyuuryo_Syukei();
  return SiteProblem(request);
}

void Measure(benchmark::State& state, const Problem& problem) {
  double processor = 0.0;
  double peak = 0.0;
  Plan plan;
  for ([[maybe_unused]] auto unused : state) {
    const Cost cost = CostOf([&] { plan = planning::MakePlan(problem, nullptr); });
    processor += cost.processor;
    peak = std::max(peak, cost.peak_mb);
    state.SetIterationTime(cost.processor);
  }
  const Outcome outcome = planning::Describe(problem, plan);
  state.counters["cpu_s"] = processor / static_cast<double>(state.iterations());
  state.counters["peak_MB"] = peak;
  if (outcome.schedule) state.counters["schedule_pct"] = outcome.schedule->loss_percent;
  state.counters["loss_pct"] = outcome.plan.common.loss_percent;
  state.counters["bound_pct"] = outcome.bound.loss_percent.value_or(0.0);
}

void PlanGreedy(benchmark::State& state) {
  PlanRequest request = AllLengths();
  request.options.effort = Effort::greedy;
  Measure(state, DemoProblem(state.range(0), static_cast<int>(state.range(1)), request));
}

void PlanFull(benchmark::State& state) {
  Measure(state, DemoProblem(state.range(0), static_cast<int>(state.range(1)), AllLengths()));
}

void PlanTwoLengthsABar(benchmark::State& state) {
  PlanRequest request = AllLengths();
  request.options.mix = 2;
  Measure(state, DemoProblem(state.range(0), static_cast<int>(state.range(1)), request));
}

/// The pieces of a site, each some mm longer or shorter.
void PlanCutsOfOneMm(benchmark::State& state) {
  const PlanRequest request = AllLengths();
  const Problem site = DemoProblem(state.range(0), static_cast<int>(state.range(1)), request);
  // The same pieces on every machine.
  std::mt19937 random(5);  // NOLINT(bugprone-random-generator-seed)
  std::vector<planning::PieceLine> pieces;
  for (const planning::Group& group : site.groups) {
    const planning::BarSteel& steel = site.supplies[group.supply].steel;
    for (const planning::Cut& cut : group.cuts) {
      for (const planning::PlannedRow& row : cut.rows) {
        planning::PieceLine& piece = pieces.emplace_back();
        piece.line = static_cast<int>(pieces.size());
        piece.length = std::clamp(cut.mm - 9 + static_cast<int>(random() % 19), 300, 11999);
        piece.count = row.pieces;
        piece.diameter = steel.diameter;
        piece.kind = steel.kind;
      }
    }
  }
  Measure(state, planning::MakeProblem(pieces, request.offer, request.options));
}

/// Instances of one stock length in the manner of the well-known ones: pieces of few or many lengths, short
/// or long for the bar, one piece each or several; thirds of bars that fit in one way alone; long bars.
struct InstanceKind {
  int stock = 0;
  int pieces = 0;
  int shortest = 0;
  int longest = 0;
  bool thirds = false;
};
constexpr InstanceKind kInstances[] = {
    {100, 50, 1, 100},       {100, 500, 20, 100},     {120, 200, 1, 100},      {150, 500, 30, 100},
    {150, 1000, 20, 100},    {1000, 100, 200, 500},   {1000, 200, 114, 290},   {1000, 500, 1, 800},
    {1000, 120, 0, 0, true}, {1000, 249, 0, 0, true}, {10000, 200, 500, 4000}, {100000, 200, 20000, 35000},
};
constexpr int kInstancesOfKind = 59;  // 708 in all

std::vector<planning::PieceLine> PiecesOf(const InstanceKind& kind, unsigned seed) {
  std::mt19937 random(seed);
  const auto between = [&](int low, int high) {
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
  };
  std::vector<planning::PieceLine> pieces;
  const auto add = [&](int length) {
    planning::PieceLine& piece = pieces.emplace_back();
    piece.line = static_cast<int>(pieces.size());
    piece.length = length;
    piece.count = 1;
  };
  for (int n = 0; n < kind.pieces; ++n) {
    if (!kind.thirds) {
      add(between(kind.shortest, kind.longest));
      continue;
    }
    const int first = between(kind.stock * 38 / 100, kind.stock * 49 / 100);
    const int second = between(kind.stock / 4 + 1, (kind.stock - first) / 2);
    add(first);
    add(second);
    add(kind.stock - first - second);
    n += 2;
  }
  return pieces;
}

/// How many are within one bar of the bound, how many at it, and what the slowest took.
void PlanInstances(benchmark::State& state) {
  double slowest = 0.0;
  int all = 0;
  int within_one = 0;
  int at_bound = 0;
  int within_a_second = 0;
  for ([[maybe_unused]] auto unused : state) {
    for (const InstanceKind& kind : kInstances) {
      for (unsigned seed = 1; seed <= kInstancesOfKind; ++seed) {
        planning::BarOffer offer;
        offer.lengths = {{kind.stock}};
        const Problem problem = planning::MakeProblem(PiecesOf(kind, seed), offer, {});
        Plan plan;
        const double seconds = CostOf([&] { plan = planning::MakePlan(problem, nullptr); }).processor;
        slowest = std::max(slowest, seconds);
        std::int64_t bars = 0;
        for (const planning::Pattern& pattern : plan.groups[0].patterns) bars += pattern.bars;
        const std::int64_t bound = plan.groups[0].bound / (std::int64_t{kind.stock} * 1'000'000);
        ++all;
        if (bars <= bound) ++at_bound;
        if (bars <= bound + 1) ++within_one;
        if (seconds < 1.0) ++within_a_second;
      }
    }
  }
  state.counters["all"] = all;
  state.counters["at_bound"] = at_bound;
  state.counters["within_1"] = within_one;
  state.counters["below_1s"] = within_a_second;
  state.counters["slowest_s"] = slowest;
}

void DemoSites(benchmark::internal::Benchmark* b) {
  for (const int site : {1, 2, 3}) b->Args({3000, site});
  b->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);
}

BENCHMARK(PlanGreedy)->Apply(DemoSites);
BENCHMARK(PlanFull)->Apply(DemoSites)->Args({20000, 1});
BENCHMARK(PlanTwoLengthsABar)->Apply(DemoSites);
BENCHMARK(PlanCutsOfOneMm)->Apply(DemoSites);
BENCHMARK(PlanInstances)->Unit(benchmark::kSecond)->Iterations(1);

}  // namespace
}  // namespace rbt::bench

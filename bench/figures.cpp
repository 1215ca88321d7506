// SPDX-License-Identifier: MIT
#include "figures.h"

#include <algorithm>

namespace rbt::bench {

namespace {

void Do(const std::function<void()>& action) {
  if (action) action();
}

}  // namespace

Spread SpreadOf(std::vector<double> figures) {
  std::ranges::sort(figures);
  const std::size_t last = figures.size() - 1;
  const std::size_t quarter = figures.size() / 4;
  return {figures[quarter], (figures[last / 2] + figures[(last + 1) / 2]) / 2, figures[last - quarter]};
}

Figures Measure(const Work& work, const DemoSite& site, int turns) {
  Figures figures;
  std::vector<double> wall;
  std::vector<double> processor;
  std::vector<double> x_bare;
  std::vector<double> x_fold;
  Do(work.begin);
  for (int turn = 0; turn < turns; ++turn) {
    Cost cost;
    double bare = 0.0;
    double fold = 0.0;
    const auto measure_work = [&] {
      Do(work.ready);
      cost = work.run();
    };
    const auto measure_yardsticks = [&] {
      bare = CostOf([&] { BareAggregation(site.Schedule(), work.yardstick); }).processor;
      fold = CostOf([&] { PlainFold(site.Schedule(), work.yardstick); }).processor;
    };
    if (turn % 2 != 0) measure_work();
    measure_yardsticks();
    if (turn % 2 == 0) measure_work();
    wall.push_back(cost.wall);
    processor.push_back(cost.processor);
    x_bare.push_back(cost.processor / bare);
    x_fold.push_back(cost.processor / fold);
    figures.peak_mb = std::max(figures.peak_mb, cost.peak_mb);
  }
  if (!work.counted.empty()) {
    Do(work.ready);
    figures.counts = CountsOf(work.counted, site.Root() / "counts");
    figures.peak_mb = figures.counts->peak_mb;
  }
  Do(work.end);
  figures.wall = SpreadOf(std::move(wall));
  figures.processor = SpreadOf(std::move(processor));
  figures.x_bare = SpreadOf(std::move(x_bare));
  figures.x_fold = SpreadOf(std::move(x_fold));
  return figures;
}

}  // namespace rbt::bench

// SPDX-License-Identifier: MIT
#include "session/planning/plan_presenter.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>

#include "planning/make_plan.h"
#include "planning/outcome/outcome.h"
#include "session/panels/print_or_show.h"
#include "shell/preparation/classified_schedule.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/selection.h"

namespace rbt {
namespace {

/// The rows of the state that is tallied: the presence flags are those of that tally.
planning::Problem ProblemOfSite(const PlanRequest& request) {
  const ClassifiedSchedule held(Selection.StartMode);
  CountTally(TallyKind::bulk);
  return SiteProblem(request);
}

planning::Outcome GreedyOutcome(planning::Problem problem) {
  problem.options.effort = planning::Effort::greedy;
  return planning::Describe(problem, planning::MakePlan(problem, nullptr));
}

}  // namespace

PlanPresenter::PlanPresenter(PlanParts parts)
    : parts_(std::move(parts)), problem_(ProblemOfSite(parts_.request)), outcome_(GreedyOutcome(problem_)) {}

PlanPresenter::~PlanPresenter() = default;

PlanScreenView PlanPresenter::View() const {
  PlanScreenView view;
  view.rows = PlanRows(outcome_);
  view.totals = {view.rows.size() - 1};
  view.losses = LossTexts(outcome_);
  view.bound = BoundText(outcome_);
  view.counts = CountsText(outcome_);
  view.progress = progress_;
  view.improving = improving_;
  if (cell_) {
    view.patterns_of = NameOfCell(outcome_, cell_->first, cell_->second);
    view.bars = BarsOfCell(outcome_, cell_->first, cell_->second);
  }
  for (const PlanBarView& bar : view.bars) view.longest_mm = std::max(view.longest_mm, bar.stock_mm);
  view.notice = notice_;
  view.left = left_;
  return view;
}

void PlanPresenter::Improve(std::function<void()> news) {
  if (search_.joinable() || problem_.groups.empty()) return;
  improving_ = true;
  progress_ = "計画を改善しています";
  search_ = std::jthread([this, news = std::move(news)](const std::stop_token& stop) { Search(stop, news); });
}

void PlanPresenter::Search(const std::stop_token& stop, const std::function<void()>& news) {
  News last;
  last.ended = true;
  try {
    last.plan = planning::MakePlan(
        problem_, planning::StopAfter(parts_.time_limit, [&stop] { return stop.stop_requested(); }),
        [&](const planning::Plan& plan, std::size_t done, std::size_t of) {
          Put({.plan = plan, .done = done, .of = of, .ended = false, .fault = nullptr});
          news();
        });
  } catch (...) {  // told on the screen's own thread
    last.fault = std::current_exception();
  }
  Put(std::move(last));
  news();
}

void PlanPresenter::Put(News found) {
  const std::lock_guard lock(mutex_);
  found_ = std::move(found);
}

void PlanPresenter::TakeNews() {
  std::optional<News> found;
  {
    const std::lock_guard lock(mutex_);
    found = std::exchange(found_, std::nullopt);
  }
  if (!found) return;
  if (found->ended) improving_ = false;
  if (found->fault) {
    progress_.clear();
    std::rethrow_exception(found->fault);
  }
  outcome_ = planning::Describe(problem_, found->plan);
  if (!found->ended) {
    progress_ = fmt::format("計画を改善しています  {} / {}", found->done, found->of);
  } else {
    progress_ = outcome_.stopped == planning::Stopped::no ? "計画ができました" : "途中までの最良の計画です";
  }
}

void PlanPresenter::OpenCell(std::size_t row, std::size_t column) {
  cell_.reset();
  if (!BarsOfCell(outcome_, row, column).empty()) cell_ = {row, column};
}

void PlanPresenter::Print(PlanSheet sheet) {
  if (!parts_.print) return;
  const std::string printer = parts_.print(sheet, outcome_);
  notice_ = SentNotice(printer);
}

void PlanPresenter::TurnBack() {
  if (cell_) {
    cell_.reset();
  } else if (improving_) {
    search_.request_stop();
  } else {
    left_ = true;
  }
}

}  // namespace rbt

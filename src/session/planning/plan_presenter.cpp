// SPDX-License-Identifier: MIT
#include "session/planning/plan_presenter.h"

#include <algorithm>
#include <exception>

#include <fmt/format.h>

#include "session/panels/print_or_show.h"

namespace rbt {

PlanPresenter::PlanPresenter(PlanParts parts, SitePlan plan)
    : parts_(std::move(parts)), plan_(std::move(plan)), search_(parts_.make_plan) {}

PlanPresenter::~PlanPresenter() = default;

PlanScreenView PlanPresenter::View() const {
  const planning::Outcome& outcome = plan_.outcome;
  PlanScreenView view;
  view.rows = PlanRows(outcome);
  view.totals = {view.rows.size() - 1};
  view.losses = LossTexts(outcome);
  view.bound = BoundText(outcome);
  view.counts = CountsText(outcome);
  view.choices = ChoicesText(plan_.choices);
  view.progress = progress_;
  view.improving = search_.Running();
  if (cell_) {
    view.patterns_of = NameOfCell(outcome, cell_->first, cell_->second);
    view.bars = BarsOfCell(outcome, cell_->first, cell_->second);
  }
  for (const PlanBarView& bar : view.bars) view.longest_mm = std::max(view.longest_mm, bar.stock_mm);
  view.notice = notice_;
  view.left = left_;
  return view;
}

void PlanPresenter::Improve(std::function<void()> news) {
  if (news_) return;
  news_ = std::move(news);
  Begin();
}

void PlanPresenter::Begin() {
  progress_.clear();
  if (!news_ || plan_.problem.groups.empty()) return;
  progress_ = "計画を改善しています";
  search_.Begin(plan_.problem, plan_.choices.time_limit, news_);
}

void PlanPresenter::TakeNews() {
  const std::optional<PlanSearch::News> found = search_.Take();
  if (!found) return;
  planning::Outcome& outcome = plan_.outcome;
  if (found->plan) outcome = planning::Describe(plan_.problem, *found->plan);
  if (!found->ended) {
    progress_ = fmt::format("計画を改善しています  {} / {}", found->done, found->of);
    return;
  }
  const bool done = !found->fault && outcome.stopped == planning::Stopped::no;
  progress_ = done ? "計画ができました" : "途中までの最良の計画です";
  if (found->fault) std::rethrow_exception(found->fault);
}

void PlanPresenter::PlanAnew(const AskChoices& ask) {
  if (!ask) return;
  std::optional<SitePlan> plan = ChangeSitePlan(ask, plan_.choices);
  if (!plan) return;
  search_.End();
  plan_ = std::move(*plan);
  cell_.reset();
  notice_.clear();
  Begin();
}

void PlanPresenter::ChangeChoices() { PlanAnew(parts_.ask_choices); }

void PlanPresenter::Advise() { PlanAnew(parts_.advise); }

void PlanPresenter::OpenCell(std::size_t row, std::size_t column) {
  cell_.reset();
  if (!BarsOfCell(plan_.outcome, row, column).empty()) cell_ = {row, column};
}

void PlanPresenter::Print(PlanSheet sheet) {
  if (!parts_.print) return;
  const std::string printer = parts_.print(sheet, plan_.outcome);
  notice_ = SentNotice(printer);
}

void PlanPresenter::TurnBack() {
  if (cell_) {
    cell_.reset();
  } else if (search_.Running()) {
    search_.Stop();
  } else {
    left_ = true;
  }
}

}  // namespace rbt

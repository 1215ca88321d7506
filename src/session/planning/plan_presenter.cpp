// SPDX-License-Identifier: MIT
#include "session/planning/plan_presenter.h"

#include <algorithm>
#include <exception>
#include <tuple>

#include <fmt/format.h>

#include "session/panels/print_or_show.h"
#include "session/panels/row_colours.h"

namespace rbt {
namespace {

constexpr std::string_view kBestSoFar = "途中までの最良の計画です";
constexpr std::string_view kStoppedToPrint = "印字のために改善をやめました。途中までの最良の計画です";

/// By rising cost, then weight; with the highest bound of equals.
auto RankOf(const planning::Outcome& outcome) {
  return std::tuple(outcome.bound.plan_cost, outcome.plan.common.table_weight, -outcome.bound.cost);
}

}  // namespace

PlanPresenter::PlanPresenter(PlanParts parts, SitePlan plan)
    : parts_(std::move(parts)), plan_(std::move(plan)), search_(parts_.make_plan) {}

PlanPresenter::~PlanPresenter() = default;

PlanScreenView PlanPresenter::View() const {
  const planning::Outcome& outcome = plan_.outcome;
  PlanScreenView view;
  view.title = std::string(kPlanTitle) + (parts_.subject.empty() ? "" : "　" + parts_.subject);
  view.rows = PlanRows(outcome);
  view.totals = {view.rows.size() - 1};
  view.colours = AlternateColours();
  view.losses = LossTexts(outcome);
  view.bound = BoundText(outcome);
  view.counts = CountsText(outcome);
  view.choices = ChoicesText(plan_.choices);
  view.progress = progress_;
  view.improving = search_.Running();
  if (cell_) {
    view.patterns_of =
        NameOfCell(outcome, cell_->first, cell_->second) + KeptText(outcome, cell_->first, cell_->second);
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
  if (const auto found = search_.Take()) Take(*found, kBestSoFar);
}

void PlanPresenter::TakePlan(const planning::Plan& plan) {
  planning::Outcome found = planning::Describe(plan_.problem, plan);
  // A search that is stopped early knows less than the plan that stood at once.
  if (RankOf(found) <= RankOf(plan_.outcome)) plan_.outcome = std::move(found);
}

void PlanPresenter::Take(const PlanSearch::News& found, std::string_view at_end) {
  if (found.plan) TakePlan(*found.plan);
  const bool carried_out = found.ended && !found.fault;
  plan_.outcome.stopped = carried_out ? found.plan.value().stopped : planning::Stopped::cancel;
  CloseEmptyCell();
  if (!found.ended) {
    progress_ = fmt::format("計画を改善しています  {} / {}", found.done, found.of);
    return;
  }
  progress_ = plan_.outcome.stopped == planning::Stopped::no ? "計画ができました" : at_end;
  if (found.fault) std::rethrow_exception(found.fault);
}

void PlanPresenter::CloseEmptyCell() {
  if (cell_ && !HoldsBars(plan_.outcome, cell_->first, cell_->second)) cell_.reset();
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
  cell_ = {row, column};
  CloseEmptyCell();
}

void PlanPresenter::Print(PlanSheet sheet) {
  if (!parts_.print) return;
  if (search_.Running()) {
    if (const auto found = search_.Finish()) Take(*found, kStoppedToPrint);
  }
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

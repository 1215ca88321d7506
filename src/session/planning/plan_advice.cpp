// SPDX-License-Identifier: MIT
#include "session/planning/plan_advice.h"

#include <algorithm>
#include <array>
#include <exception>
#include <utility>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "planning/outcome/outcome.h"
#include "planning/outcome/plan_text.h"
#include "platform/numbers/number_mask.h"

namespace rbt {
namespace {

using planning::OutcomeAdvice;

/// Nobody orders more lengths of a steel because it saves the last grams.
constexpr int kMostAdvised = 8;
constexpr double kMilligramsPerKilogram = 1e6;
constexpr std::array<std::string_view, 6> kCaptions{"選択", "鋼材", "種類", "㎏", "ロス %", "定尺 mm"};

constexpr std::array<ControlHint, 3> kAdviceHints{{
    {"dbgAdvice", "矢印で移る、Enter でその定尺だけを買う計画にする"},
    {"cmdTake", "選んだ行の定尺だけを買う計画にする"},
    {"cmdExit", "調べるのをやめる、次に計画に戻る"},
}};

planning::Problem AdvisedProblem(PlanChoices choices) {
  const int limit = std::exchange(choices.max_lengths, 0);
  choices.sets.clear();
  planning::Problem problem = TalliedProblem(RequestOf(choices));
  problem.options.advise = limit > 0 ? std::min(limit, kMostAdvised) : kMostAdvised;
  return problem;
}

/// Points where one length more gains nothing are not shown.
void LeaveRepeatsOut(OutcomeAdvice& of) {
  const auto same = [](const OutcomeAdvice::Point& a, const OutcomeAdvice::Point& b) {
    return a.lengths == b.lengths;
  };
  of.curve.erase(std::unique(of.curve.begin(), of.curve.end(), same), of.curve.end());
}

/// Which curve a row belongs to, and which of its points.
struct Place {
  const OutcomeAdvice& advice;
  std::size_t point;
};
std::optional<Place> PlaceOf(const std::vector<OutcomeAdvice>& advice, std::size_t row) {
  for (const OutcomeAdvice& of : advice) {
    if (row < of.curve.size()) return Place{of, row};
    row -= of.curve.size();
  }
  return std::nullopt;
}

}  // namespace

PlanAdvicePresenter::PlanAdvicePresenter(PlanChoices choices, PlanSearch::Work make_plan)
    : choices_(std::move(choices)), problem_(AdvisedProblem(choices_)), search_(std::move(make_plan)) {}

PlanAdvicePresenter::~PlanAdvicePresenter() = default;

PlanAdviceView PlanAdvicePresenter::View() const {
  PlanAdviceView view;
  for (const OutcomeAdvice& of : advice_) {
    const auto set = choices_.sets.find(of.steel);
    for (const OutcomeAdvice::Point& point : of.curve) {
      const bool taken = set != choices_.sets.end() && set->second == point.lengths;
      const double kilograms = static_cast<double>(point.steel_weight) / kMilligramsPerKilogram;
      view.rows.push_back({taken ? "○" : "", planning::SteelText(of.steel), std::to_string(point.count),
                           FormatNumber(kilograms, "#,##0"), FormatNumber(point.loss_percent, "0.000"),
                           fmt::format("{}", fmt::join(point.lengths, " "))});
    }
  }
  view.progress = progress_;
  view.searching = search_.Running();
  view.left = left_;
  return view;
}

AdviceCurve PlanAdvicePresenter::CurveOf(std::size_t row) const {
  const std::optional<Place> place = PlaceOf(advice_, row);
  if (!place) return {};
  AdviceCurve curve{planning::SteelText(place->advice.steel), {}, place->point};
  curve.marks.reserve(place->advice.curve.size());
  for (const OutcomeAdvice::Point& point : place->advice.curve) {
    curve.marks.push_back({point.count, point.loss_percent});
  }
  return curve;
}

void PlanAdvicePresenter::Search(std::function<void()> news) {
  if (problem_.groups.empty()) {
    progress_ = "計画する部材がありません";
    return;
  }
  progress_ = "定尺を比べています";
  search_.Begin(problem_, choices_.time_limit, std::move(news));
}

void PlanAdvicePresenter::TakeNews() {
  const std::optional<PlanSearch::News> found = search_.Take();
  if (!found) return;
  if (found->fault) {
    progress_.clear();
    std::rethrow_exception(found->fault);
  }
  const planning::Outcome outcome = planning::Describe(problem_, found->plan.value());
  advice_ = outcome.advice;
  for (OutcomeAdvice& of : advice_) LeaveRepeatsOut(of);
  if (!found->ended) {
    progress_ = fmt::format("定尺を比べています  {} / {}", found->done, found->of);
    return;
  }
  progress_ = outcome.stopped == planning::Stopped::no ? "定尺を比べました" : "途中まで比べました";
}

void PlanAdvicePresenter::Take(std::size_t row) {
  const std::optional<Place> place = PlaceOf(advice_, row);
  if (!place) return;
  taken_ = choices_;
  taken_->sets[place->advice.steel] = place->advice.curve[place->point].lengths;
  left_ = true;
}

void PlanAdvicePresenter::TurnBack() {
  if (search_.Running()) {
    search_.Stop();
  } else {
    left_ = true;
  }
}

std::span<const std::string_view> AdviceCaptions() { return kCaptions; }

std::span<const ControlHint> AdviceHints() { return kAdviceHints; }

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "session/planning/plan_search.h"

#include <utility>

namespace rbt {

PlanSearch::PlanSearch(Work work) : work_(std::move(work)) {}

void PlanSearch::Begin(const planning::Problem& problem, double seconds, std::function<void()> news) {
  End();
  running_ = true;
  thread_ = std::jthread([this, &problem, seconds, news = std::move(news)](const std::stop_token& stop) {
    Run(stop, problem, seconds, news);
  });
}

void PlanSearch::Run(const std::stop_token& stop, const planning::Problem& problem, double seconds,
                     const std::function<void()>& news) {
  News last;
  last.ended = true;
  try {
    last.plan = work_(problem, planning::StopAfter(seconds, [&stop] { return stop.stop_requested(); }),
                      [&](const planning::Plan& plan, std::size_t done, std::size_t of) {
                        Put({.plan = plan, .done = done, .of = of, .ended = false, .fault = nullptr});
                        news();
                      });
  } catch (...) {  // told on the caller's own thread
    last.fault = std::current_exception();
  }
  Put(std::move(last));
  news();
}

void PlanSearch::Put(News found) {
  const std::lock_guard lock(mutex_);
  // A fault does not take away the plan that was found before it and not taken yet.
  if (!found.plan && found_) found.plan = std::move(found_->plan);
  found_ = std::move(found);
}

std::optional<PlanSearch::News> PlanSearch::Take() {
  const std::lock_guard lock(mutex_);
  std::optional<News> found = std::exchange(found_, std::nullopt);
  if (found && found->ended) running_ = false;
  return found;
}

std::optional<PlanSearch::News> PlanSearch::Finish() {
  if (thread_.joinable()) {
    thread_.request_stop();
    thread_.join();
  }
  return Take();
}

void PlanSearch::End() {
  Finish();
  running_ = false;
}

}  // namespace rbt

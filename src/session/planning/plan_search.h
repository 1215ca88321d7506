// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

#include "planning/make_plan.h"

namespace rbt {

/// A search for the best plan, in a thread of its own. Every call comes from the thread that made it.
class PlanSearch {
 public:
  /// Makes the plan: what `planning::MakePlan` is.
  using Work =
      std::function<planning::Plan(const planning::Problem& problem, const planning::StopSignal& signal,
                                   const planning::PlanListener& listener)>;

  /// What it has found.
  struct News {
    std::optional<planning::Plan> plan;  ///< the best so far; nothing when it has ended before there was one
    std::size_t done = 0;                ///< parts of the work
    std::size_t of = 0;
    bool ended = false;
    std::exception_ptr fault;  ///< what has ended it before its time
  };

  explicit PlanSearch(Work work = planning::MakePlan);
  PlanSearch(const PlanSearch&) = delete;
  PlanSearch& operator=(const PlanSearch&) = delete;
  /// As `End`.
  ~PlanSearch() = default;

  /// Begins, once the one before has ended. The problem stays as it is until then. `news` is called by the
  /// search's thread whenever there is something to take.
  void Begin(const planning::Problem& problem, double seconds, std::function<void()> news);
  /// True from the beginning until the end is taken.
  bool Running() const { return running_; }
  /// What was found since it was last taken.
  std::optional<News> Take();
  /// The best so far shall be the plan.
  void Stop() { thread_.request_stop(); }
  /// Stops, waits for the end and takes what was found.
  std::optional<News> Finish();
  /// Stops, waits for the end and forgets what was found.
  void End();

 private:
  void Run(const std::stop_token& stop, const planning::Problem& problem, double seconds,
           const std::function<void()>& news);
  void Put(News found);

  Work work_;
  std::mutex mutex_;
  std::optional<News> found_;  ///< by the thread, not taken yet
  bool running_ = false;       ///< of the caller's thread alone
  std::jthread thread_;        ///< goes first
};

}  // namespace rbt

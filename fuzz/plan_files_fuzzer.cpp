// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string_view>

#include "planning/input/make_problem.h"
#include "planning/make_plan.h"
#include "planning/problem/refusal.h"
#include "planning/verify/verify.h"
#include "platform/fault.h"

/// Whatever the bytes, a file of pieces, lengths or rest bars is read or refused with its line, and what is
/// read can be planned: the plan keeps what plans promise.

namespace {

constexpr std::size_t kMostLines = 40;
constexpr int kLongestBar = 2000;
constexpr int kQuestions = 60;  // a plan is asked for as long as that

void RefusedOrNot(const std::function<void()>& action) {
  try {
    action();
  } catch (const rbt::planning::Refusal&) {
    // Refused: that is an answer.
  } catch (const rbt::Fault&) {
    // More than can be counted.
  }
}

void MustBePlanned(const rbt::planning::Problem& problem) {
  const auto stop = [left = kQuestions]() mutable {
    return --left < 0 ? rbt::planning::Stopped::time : rbt::planning::Stopped::no;
  };
  const rbt::planning::Plan plan = rbt::planning::SolvePlan(problem, stop, nullptr);
  for (const std::string& fault : rbt::planning::FindFaults(problem, plan)) {
    std::fprintf(stderr, "%s\n", fault.c_str());
    std::abort();
  }
}

void Plan(std::string_view text) {
  std::vector<rbt::planning::PieceLine> pieces = rbt::planning::ParsePieces(text);
  if (pieces.size() > kMostLines) return;
  for (rbt::planning::PieceLine& piece : pieces) piece.length = 1 + (piece.length - 1) % kLongestBar;
  rbt::planning::BarOffer offer;
  offer.lengths = {{900, kLongestBar}};
  rbt::planning::PlanOptions options;
  options.bar = {3, 0, 0};
  MustBePlanned(rbt::planning::MakeProblem(pieces, offer, options));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  RefusedOrNot([&] { Plan(text); });
  RefusedOrNot([&] { rbt::planning::ParseLengths(text); });
  RefusedOrNot([&] { rbt::planning::ParseRests(text); });
  rbt::planning::Scopes::Of(text);
  return 0;
}

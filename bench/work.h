// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "cost.h"
#include "demo_site.h"
#include "yardstick.h"

namespace rbt::bench {

/// Something that a user waits for. What is left out does nothing.
struct Work {
  std::string_view name;
  std::function<void()> begin = {};  ///< once before the first run
  std::function<void()> ready = {};  ///< before each run
  std::function<Cost()> run = {};
  std::function<void()> end = {};  ///< once behind the last run
  Grouping yardstick = Grouping::diameter;
  Command counted = {};  ///< see `Counts`; empty: none is
};

/// Commands of a program as a script calls them, each a process of its own.
std::vector<Work> ColdWorks(const DemoSite& site, const std::string& program_file);
/// Steps of a start and tallies within a program that runs.
std::vector<Work> TallyWorks(const DemoSite& site);
/// From the press of a filter button to the last repaint.
std::vector<Work> ScreenWorks(const DemoSite& site);
/// The stock-length engine by itself.
std::vector<Work> EngineWorks(const DemoSite& site);

}  // namespace rbt::bench

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace rbt::planning {

/// How much of a bar its pieces may take up, in mm, none below 0.
struct BarRule {
  int kerf = 0;  ///< lost between two pieces, and behind the last one when a rest stays
  int trim = 0;  ///< cut off the bar's end first
  int plus = 0;  ///< by which a bar may be longer than its stock length

  friend bool operator==(const BarRule&, const BarRule&) = default;
};

/// What is made least: metres of bought bar, or yen.
enum class Aim { steel, money };
enum class Effort { greedy, full };

struct PlanOptions {
  BarRule bar;
  int mix = 0;                 ///< at most so many cut lengths on a bar; 0: any number
  int max_lengths = 0;         ///< at most so many bought lengths of a steel; 0: any number
  int usable = 1000;           ///< mm from which on a left is a usable rest
  std::string scope = "site";  ///< as given: "site", "floor", or "-1..2/3..5"
  bool keep_welded = false;    ///< welded rows stay as scheduled
  Aim aim = Aim::steel;
  Effort effort = Effort::full;
  int advise = 0;  ///< advice for 1 to so many lengths; 0: none
};

}  // namespace rbt::planning

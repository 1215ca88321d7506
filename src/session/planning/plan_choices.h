// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "planning/problem/problem.h"
#include "session/planning/plan_request.h"

namespace rbt {

/// What the user asks of the plan of a site. Lengths are mm.
struct PlanChoices {
  int kerf = 0;
  int trim = 0;
  std::optional<int> plus = std::nullopt;  ///< nothing: as the setting says
  int mix = 0;                             ///< at most so many cut lengths on a bar; 0: any number
  int max_lengths = 0;                     ///< at most so many bought lengths of a steel; 0: any number
  int usable = 1000;                       ///< from which on a rest is of use
  int time_limit = 10;                     ///< seconds that a search may take
  std::string scope = "site";              ///< one that `Scopes::Of` takes
  bool keep_welded = false;                ///< welded rows stay as scheduled
  bool by_money = false;                   ///< yen are made least, not metres of bar
  bool greedy = false;                     ///< no search: the greedy plan is the plan
  std::vector<int> lengths = {};           ///< that may be bought; empty: those of the file, else of the site
  std::string lengths_file = {};           ///< CSV file of lengths with prices and lots; empty: none
  std::string rests_file = {};             ///< CSV file of rest bars; empty: none
  /// Sets taken from the advice: of a steel these lengths alone.
  std::map<planning::BarSteel, std::vector<int>> sets = {};

  friend bool operator==(const PlanChoices&, const PlanChoices&) = default;
};

/// What is asked for by the choices, their files read. Refusals: those of `planning/input/plan_files.h`, the
/// name of the file in front. Faults: `file`.
PlanRequest RequestOf(const PlanChoices& choices);

enum class PlanFieldKind {
  text,
  tick,   ///< its text is "0" or "1"
  file,   ///< the path of one, or empty
  unseen  ///< in the settings alone
};

/// A choice as a text: in a box of the options, and in the settings.
struct PlanField {
  PlanFieldKind kind = PlanFieldKind::text;
  std::string_view control;  ///< the box; empty: there is none
  std::string_view key;      ///< in the settings, and in words; empty: it is not stored
  std::string (*text)(const PlanChoices& of) = nullptr;
  /// False for a text that says nothing the choice can be; nothing is changed then.
  bool (*take)(PlanChoices& into, std::string_view text) = nullptr;
  std::string_view wrong = {};  ///< what is told of such a text
};
std::span<const PlanField> PlanFields();

/// The choices of the bound site as the settings of the user have them: of this file in this folder, for the
/// files of all roots are named alike.
struct RememberedPlan {
  PlanChoices choices;
  std::vector<std::string> unreadable;  ///< places of settings that cannot be read: these have their defaults
};
RememberedPlan RememberedChoices();
/// Stores what has changed. Faults: `file`.
void RememberChoices(const PlanChoices& choices);

/// What differs from the defaults, in words: "切断しろ 3   端切り 10"; empty where nothing does.
std::string ChoicesText(const PlanChoices& choices);
/// The steels that take a set of lengths alone: "D16 異形 6000,12000   D19 異形 7000"; empty for none.
std::string SetsText(const PlanChoices& choices);

}  // namespace rbt

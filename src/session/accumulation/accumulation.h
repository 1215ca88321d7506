// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "tally/tally_result.h"

namespace rbt {

/// Turns the accumulation on, here and in the registry, and stores the tally of a screen as the sum that the
/// next site is added to. What a fault leaves on ends with the `AddingStep` around it.
void BeginAccumulation(const TallyResult& sum);
/// Turns it off, here and in the registry, then drops the stored sum. Where that fails it is off all the
/// same.
void EndAccumulation();

/// The bulk tally of a site on top of the stored sum. The site is prepared as its own start would do it, by
/// the selection of now; `TallyGrid` holds the sum. The bound site, its open database and its presence flags
/// are as before then, also with a fault: `file` for a site that needs the newer program, and whatever start
/// and tally throw.
TallyResult AddSite(std::string_view KasanDataPath);

/// One adding step: where something keeps it from its end, the accumulation ends with it.
class AddingStep {
 public:
  AddingStep() = default;
  AddingStep(const AddingStep&) = delete;
  AddingStep& operator=(const AddingStep&) = delete;
  ~AddingStep();
};

}  // namespace rbt

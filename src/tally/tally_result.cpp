// SPDX-License-Identifier: MIT
#include "tally/tally_result.h"

namespace rbt {

TallyResult WithUlbonRaised(TallyResult result, std::int32_t percent) {
  result.ulbon_percent = percent;
  const bool was_as_tallied = result.origin == ResultOrigin::counted || result.origin == ResultOrigin::raised;
  const bool is_raised = percent != 0 || result.bars_raised;
  if (was_as_tallied) result.origin = is_raised ? ResultOrigin::raised : ResultOrigin::counted;
  return result;
}

}  // namespace rbt

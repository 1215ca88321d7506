// SPDX-License-Identifier: MIT
#include "tally/tally_result.h"

namespace rbt {

TallyResult WithUlbonRaised(TallyResult result, std::int32_t percent) {
  result.ulbon_percent = percent;
  const bool was_as_tallied = result.origin == ResultOrigin::counted || result.origin == ResultOrigin::raised;
  if (was_as_tallied) result.origin = percent == 0 ? ResultOrigin::counted : ResultOrigin::raised;
  return result;
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "support/sample.h"

#include <cstdlib>

namespace rbt::test {

int SampleStep(int many) { return std::getenv("RBTALLY_SAMPLE") == nullptr ? 1 : many; }

void TryMoments(const std::function<bool(int)>& is_there) {
  const int step = SampleStep(8);
  int moment = 1;
  while (is_there(moment)) moment += step;
  if (step == 1) return;
  for (moment -= step - 1; is_there(moment);) ++moment;
}

}  // namespace rbt::test

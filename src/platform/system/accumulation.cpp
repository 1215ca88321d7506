// SPDX-License-Identifier: MIT
#include "platform/system/accumulation.h"

#include "platform/system/services.h"

namespace rbt {

void LoadAccumulation() {
  if (Services.Accumulation) Services.Accumulation();
}

}  // namespace rbt

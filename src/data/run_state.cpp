// SPDX-License-Identifier: MIT
#include "data/run_state.h"

namespace rbt {

RunStateData RunState;

}  // namespace rbt

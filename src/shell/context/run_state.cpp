// SPDX-License-Identifier: MIT
#include "shell/context/run_state.h"

namespace rbt {

RunStateData RunState;

}  // namespace rbt

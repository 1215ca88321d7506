// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "session/floorpart/floorpart_screen.h"
#include "session/panels/views.h"

namespace rbt {

/// What a screen of floors or parts tells of its controls, panels included.
std::vector<ControlHint> FloorPartHints(const FloorPartScreen& screen);

}  // namespace rbt

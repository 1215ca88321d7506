// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "session/panels/views.h"

namespace rbt {

/// What the result screens tell of their controls, panels included.
std::span<const ControlHint> ResultHints();

}  // namespace rbt

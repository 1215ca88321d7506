// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace rbt::planning {

/// Why a plan was not carried to its end.
enum class Stopped { no, time, cancel };

/// Asked again and again while a plan is made; anything but `no` ends the work with the best so far.
using StopSignal = std::function<Stopped()>;

}  // namespace rbt::planning

// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

/// The cutting plan and its options.
std::vector<FormEntry> PlanningForms();

}  // namespace rbt

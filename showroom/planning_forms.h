// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

/// The cutting plan.
std::vector<FormEntry> PlanningForms();

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

/// The cutting plan, its options, and the advice which lengths to buy.
std::vector<FormEntry> PlanningForms();

}  // namespace rbt

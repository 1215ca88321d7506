// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

/// The floor and part screens.
std::vector<FormEntry> FloorPartForms();

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

/// The dialog of the site that is added next.
std::vector<FormEntry> AccumulationForms();

}  // namespace rbt

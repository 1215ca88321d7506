// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

/// Every form of the program: the walk through all forms and the pictures take them from here. A form that
/// reads the site leans on a loaded one.
std::vector<FormEntry> AllForms();

}  // namespace rbt

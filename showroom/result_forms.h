// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

/// The result screens.
std::vector<FormEntry> ResultForms();

}  // namespace rbt

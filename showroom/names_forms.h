// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

/// The screen of registered names.
std::vector<FormEntry> NamesForms();

}  // namespace rbt

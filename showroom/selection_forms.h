// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

/// The selection dialogs.
std::vector<FormEntry> SelectionForms();

}  // namespace rbt

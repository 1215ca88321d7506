// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

/// The preview over real sheets of the loaded site's tally, and the list of printers. Nothing is printed.
std::vector<FormEntry> PreviewForms();

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

/// The dialogs of saved tallies. They lean on tallies that are saved for them in the loaded site.
std::vector<FormEntry> ArchiveForms();

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

/// The menu with every sibling on disk, in the states that the start modes and the caller bring about. It is
/// cut off from site and event loop.
std::vector<FormEntry> MenuForms();

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

/// `SETJS` and `SETCOLOR`.
std::vector<FormEntry> SettingsForms();

}  // namespace rbt

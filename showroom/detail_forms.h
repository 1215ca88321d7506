// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "showroom/form_registry.h"

namespace rbt {

std::vector<FormEntry> DetailForms();

}  // namespace rbt

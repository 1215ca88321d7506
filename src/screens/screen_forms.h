// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "platform/desktop/form_registry.h"

namespace rbt {

/// The bulk result screen `JS`, made and loaded.
std::unique_ptr<QWidget> MakeJS();

/// The result screens, for the walk through all forms and the pictures.
std::vector<FormEntry> ScreenForms();

}  // namespace rbt

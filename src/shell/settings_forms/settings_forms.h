// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "platform/desktop/form_registry.h"

namespace rbt {

/// `SETJS`, made and loaded.
std::unique_ptr<QWidget> MakeSETJS();
/// Shows `SETJS` over the active form and returns when it is ended; the cached settings are those stored
/// then.
void OpenSettings();

/// The settings forms, for the walk through all forms and the pictures.
std::vector<FormEntry> SettingsForms();

}  // namespace rbt

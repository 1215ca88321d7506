// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QWidget;

namespace rbt {

/// `SETJS`, made and loaded.
std::unique_ptr<QWidget> MakeSETJS();
/// Shows `SETJS` over the active form and returns when it is ended; the cached settings are those stored
/// then.
void OpenSettings();

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QWidget;

namespace rbt {

/// The plan of the bound site under the selection, made and loaded; its search has begun. Throws what keeps a
/// plan from being made.
std::unique_ptr<QWidget> MakePlanForm();

/// Shows it in place of the active window and returns when it is left.
void OpenPlan();

}  // namespace rbt

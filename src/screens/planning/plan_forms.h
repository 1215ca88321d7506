// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QWidget;

namespace rbt {

/// The plan of the bound site under the selection, by the choices that are remembered for it, made and
/// loaded; its search has begun. Where these do not allow a plan, the user is asked for others; null when he
/// gives none. Throws what the tally throws.
std::unique_ptr<QWidget> MakePlanForm();

/// The options and the advice of that plan, made and loaded.
std::unique_ptr<QWidget> MakePlanOptionsForm();
std::unique_ptr<QWidget> MakePlanAdviceForm();

/// Shows the plan in place of the active window and returns when it is left.
void OpenPlan();

}  // namespace rbt

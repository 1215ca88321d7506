// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QWidget;

namespace rbt {

/// The floor screen and the part screen, made and loaded.
std::unique_ptr<QWidget> MakeKAIJS();
std::unique_ptr<QWidget> MakeBUIJS();

}  // namespace rbt

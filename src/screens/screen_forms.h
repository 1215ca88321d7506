// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "platform/desktop/form_registry.h"

namespace rbt {

/// The result screens, made and loaded: bulk, page and line, shape, shape by page and line.
std::unique_ptr<QWidget> MakeJS();
std::unique_ptr<QWidget> MakePGJS();
std::unique_ptr<QWidget> MakeKEIJOJS();
std::unique_ptr<QWidget> MakePKEIJOJS();

/// The result screens, for the walk through all forms and the pictures.
std::vector<FormEntry> ScreenForms();

}  // namespace rbt

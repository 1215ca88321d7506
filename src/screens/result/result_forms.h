// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QWidget;

namespace rbt {

/// The result screens, made and loaded: bulk, page and line, shape, shape by page and line.
std::unique_ptr<QWidget> MakeJS();
std::unique_ptr<QWidget> MakePGJS();
std::unique_ptr<QWidget> MakeKEIJOJS();
std::unique_ptr<QWidget> MakePKEIJOJS();

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QWidget;

namespace rbt {

struct ResultScreen;

/// A result screen, made and loaded, with the dialogs and doors it leans on. `screen` outlives the form.
std::unique_ptr<QWidget> MakeResultForm(const ResultScreen& screen);

}  // namespace rbt

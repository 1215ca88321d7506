// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace rbt {

inline void Click(QWidget& form, const char* button) { form.findChild<QPushButton*>(button)->click(); }

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace rbt {

/// What a button says, under the title of its screen, while the program cannot serve it yet.
void SayNotReady(std::string_view what, std::string_view title);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "session/result/result_screen.h"

namespace rbt::test {

/// The result screens that ask for a range first.
inline std::vector<const ResultScreen*> ScopedScreens() {
  std::vector<const ResultScreen*> scoped;
  for (const ResultScreen* const screen : ResultScreens()) {
    if (screen->IsScoped()) scoped.push_back(screen);
  }
  return scoped;
}

}  // namespace rbt::test

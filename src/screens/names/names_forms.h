// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace rbt {

class Touroku;

/// The screen of registered names, made and loaded, with the tally screens it sends its marks to.
std::unique_ptr<Touroku> MakeTouroku();

}  // namespace rbt

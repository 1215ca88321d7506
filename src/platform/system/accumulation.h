// SPDX-License-Identifier: MIT
#pragma once

namespace rbt {

/// Brings the sums of the sites that were tallied before into the current result, where there are any. A
/// fault leaves it as it was.
void LoadAccumulation();

}  // namespace rbt

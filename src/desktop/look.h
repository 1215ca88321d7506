// SPDX-License-Identifier: MIT
#pragma once

namespace rbt {

/// Readies the application object for the forms: icon, fixed-pitch Japanese font ("ＭＳ ゴシック"
/// where it is installed, else IPAGothic), colours, the visible focus. The program does not end with its last
/// window: a hidden menu comes back.
void PrepareDesktop();

}  // namespace rbt

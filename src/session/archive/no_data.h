// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace rbt {

/// What both dialogs say where there is nothing to load or to save.
inline constexpr std::string_view kNoDataTitle = "データなし";
inline constexpr std::string_view kNoData = "データがありません";

}  // namespace rbt

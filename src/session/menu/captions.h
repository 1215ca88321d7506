// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace rbt {

inline constexpr std::string_view kMenuTitle = "重量集計メニュー";

}  // namespace rbt

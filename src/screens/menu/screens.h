// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <span>
#include <string_view>

class QWidget;

namespace rbt {

/// One form that the menu opens. A form that is ready takes one row with the function that makes and loads
/// it; until then the menu says that it cannot be used yet.
struct MenuScreen {
  std::string_view form;     ///< object name
  std::string_view caption;  ///< how messages name it
  std::unique_ptr<QWidget> (*make)() = nullptr;
};

/// All of them, those that are not ready too.
std::span<const MenuScreen> MenuScreens();

}  // namespace rbt

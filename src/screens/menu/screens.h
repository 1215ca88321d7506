// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string_view>

class QWidget;

namespace rbt {

/// One form that the menu opens, with the function that makes and loads it.
struct MenuScreen {
  std::string_view form;  ///< object name
  std::function<std::unique_ptr<QWidget>()> make;
};

/// Those that are ready. Of the others the menu says that they cannot be used yet.
std::span<const MenuScreen> MenuScreens();

}  // namespace rbt

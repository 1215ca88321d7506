// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

namespace rbt {

/// Lets the user choose a colour, `rgb` at first; nothing when they turn back. A colour is 24 bits, red in
/// the low byte.
std::optional<std::int32_t> ChooseColour(std::string_view title, std::int32_t rgb);

/// What asks for it: the desktop's dialog, or a test's script.
using ColourChooser = std::function<std::optional<std::int32_t>(std::string_view title, std::int32_t rgb)>;
/// That of the command line, which cannot ask.
std::optional<std::int32_t> ChooseNoColour(std::string_view title, std::int32_t rgb);

}  // namespace rbt

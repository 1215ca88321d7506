// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include <QColor>

namespace rbt {

/// A colour as the settings keep it: 24 bits, red in the low byte. Higher bits do not count.
QColor ColourOfRgb(std::int32_t rgb);
std::int32_t RgbOfColour(const QColor& colour);

/// Asks for a colour in a dialog over the active window: for `ChooseColour`.
std::optional<std::int32_t> AskColour(std::string_view title, std::int32_t rgb);

}  // namespace rbt

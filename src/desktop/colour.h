// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include <QColor>

class QWidget;

namespace rbt {

/// A colour as the settings keep it: 24 bits, red in the low byte. Higher bits do not count.
QColor ColourOfRgb(std::int32_t rgb);
std::int32_t RgbOfColour(const QColor& colour);

/// Lets the user choose a colour in a dialog over the form, `rgb` at first; nothing when they turn back.
std::optional<std::int32_t> AskColour(QWidget& form, std::string_view title, std::int32_t rgb);

using ColourHandler = std::function<std::optional<std::int32_t>(std::string_view title, std::int32_t rgb)>;
/// A test's script in place of the dialog; an empty one is the dialog again. Returns the one that was in
/// place.
ColourHandler SetColourHandler(ColourHandler handler);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/print/printer_surface.h"

namespace rbt {

/// Prints items at a place.
void PrintAt(PrinterSurface& Printer, float x, float y, std::initializer_list<std::string_view> items);
/// Height of a line of the current font, measured by an empty `Print`; the pen stays.
float MeasureLine(PrinterSurface& Printer);

/// The gap in twips that spreads a text evenly over a width, in the font that it sets: the rest of the width
/// by the number of gaps, negative for a text that is wider. `FontSize` is a number as text. A text of fewer
/// than two characters gives 0 after a message.
float Get_MojiKankaku(PrinterSurface& Printer, std::string_view FontName, std::string_view FontSize,
                      float Width, std::string_view Text);
/// Prints a text one character at a time, the gap between them.
void PrintSpread(PrinterSurface& Printer, float x, float y, std::string_view text, float gap);

}  // namespace rbt

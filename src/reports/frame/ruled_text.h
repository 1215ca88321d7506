// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/print/printer_surface.h"

namespace rbt {

/// What the length of a rule under a text goes by.
enum class RuleBy {
  position,    ///< none: it ends at a fixed X
  width,       ///< the measured width of the text; the rule ends behind the text
  characters,  ///< their number
  bytes,       ///< the bytes of the text in code page 932
  name_size,   ///< half the bytes times the font's size in points: how long names are ruled
};

/// Where a rule ends: `each` twips for each of what it goes by, and `more` twips, from the rule's start (of
/// `width`: from the text's); of a position `more` is the X itself. It never goes beyond X `at_most`; 0 lets
/// it go anywhere.
struct RuleEnd {
  RuleBy by = RuleBy::position;
  double each = 0.0;
  double more = 0.0;
  float at_most = 0.0F;
};
constexpr RuleEnd EndsAt(float x) { return {RuleBy::position, 0.0, x}; }
constexpr RuleEnd EndsBehindText(float more = 0.0F, float at_most = 0.0F) {
  return {RuleBy::width, 1.0, more, at_most};
}

/// A text at X, and the rule under it from X to its end.
struct RuledText {
  float x = 0.0F;
  float rule_from = 0.0F;
  RuleEnd rule_to = {};
};

/// X where the rule under a text of the current font ends.
float RuleEndX(const PrinterSurface& Printer, const RuledText& place, std::string_view text);

/// Prints a text and the rule under it, which stands where the pen is after the text. The rule is as long as
/// `measured` makes it, where that is another text.
void PrintRuled(PrinterSurface& Printer, const RuledText& place, float y, std::string_view text);
void PrintRuled(PrinterSurface& Printer, const RuledText& place, float y, std::string_view text,
                std::string_view measured);

}  // namespace rbt

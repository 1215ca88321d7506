// SPDX-License-Identifier: MIT
#include "reports/frame/ruled_text.h"

#include <algorithm>

#include "platform/text/characters.h"
#include "reports/frame/letter_spacing.h"
#include "reports/frame/report_text.h"

namespace rbt {

namespace {

/// How many of what a rule goes by.
double UnitsOf(RuleBy by, const PrinterSurface& Printer, std::string_view text) {
  switch (by) {
    case RuleBy::position:
      return 0.0;
    case RuleBy::width:
      return Printer.TextWidth(text);
    case RuleBy::characters:
      return static_cast<double>(CharacterCount(text));
    case RuleBy::bytes:
      return Get_ByteLen(text);
    case RuleBy::name_size:
      return Get_ByteLen(text) / 2.0 * Printer.FontSize;
  }
  return 0.0;
}

/// X that a rule's length counts from.
float OriginOf(const RuledText& place) {
  switch (place.rule_to.by) {
    case RuleBy::position:
      return 0.0F;
    case RuleBy::width:
      return place.x;
    default:
      return place.rule_from;
  }
}

}  // namespace

float RuleEndX(const PrinterSurface& Printer, const RuledText& place, std::string_view text) {
  const RuleEnd& end = place.rule_to;
  const double length = UnitsOf(end.by, Printer, text) * end.each + end.more;
  const auto x = static_cast<float>(OriginOf(place) + length);
  return end.at_most > 0 ? std::min(x, end.at_most) : x;
}

void PrintRuled(PrinterSurface& Printer, const RuledText& place, float y, std::string_view text) {
  PrintRuled(Printer, place, y, text, text);
}

void PrintRuled(PrinterSurface& Printer, const RuledText& place, float y, std::string_view text,
                std::string_view measured) {
  PrintAt(Printer, place.x, y, {text});
  Printer.Line(place.rule_from, Printer.CurrentY, RuleEndX(Printer, place, measured), Printer.CurrentY);
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/print/printer_surface.h"

namespace rbt::test {

/// A surface that keeps what it is given, and questions about the first page of the last document.
class DrawnPage {
 public:
  DrawnPage();

  PrinterSurface Printer;
  std::vector<PrintedDocument> documents;

  std::vector<PrintedText> Texts() const;
  std::vector<PrintedRule> Rules() const;
  /// The first text that reads so, or that starts so; one that is not there fails the test with its name.
  PrintedText TextOf(std::string_view text) const;
  PrintedText TextThatStarts(std::string_view start) const;
  bool Has(std::string_view text) const;
  /// The text that starts at X in the row of another text.
  std::string TextBeside(const PrintedText& text, float x) const;
  std::string TextAt(float x, float y) const;
  /// The first rule at this Y from this X; one that is not there fails the test.
  PrintedRule RuleAt(float y, float x1) const;
  /// X of the vertical rules, Y of the horizontal rules of the frame (DrawWidth 5).
  std::vector<float> FrameColumns() const;
  std::vector<float> FrameRows() const;
};

}  // namespace rbt::test

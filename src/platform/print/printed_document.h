// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace rbt {

/// One text as it stands on a page: its top left corner in twips, its font, UTF-8.
struct PrintedText {
  float x = 0.0F;
  float y = 0.0F;
  std::string text;
  std::string font_name;
  float font_size = 0.0F;  ///< points
  bool font_bold = false;

  friend bool operator==(const PrintedText&, const PrintedText&) = default;
};

/// A straight rule, ends in twips.
struct PrintedRule {
  float x1 = 0.0F;
  float y1 = 0.0F;
  float x2 = 0.0F;
  float y2 = 0.0F;
  std::int32_t draw_width = 1;  ///< units of 1/360 inch

  friend bool operator==(const PrintedRule&, const PrintedRule&) = default;
};

/// What a page holds, in the order of drawing.
using PrintedPage = std::vector<std::variant<PrintedText, PrintedRule>>;

/// A finished document: what a report drew, for a printer, a PDF file, a preview or a trace to show.
struct PrintedDocument {
  std::string device_name;
  std::int32_t paper_code = 0;   ///< see `platform/print/paper.h`
  std::int32_t orientation = 0;  ///< 1 portrait, 2 landscape
  std::vector<PrintedPage> pages;
  std::string title = {};  ///< what a print queue and a file call it, without a date; empty when nobody said
};

}  // namespace rbt

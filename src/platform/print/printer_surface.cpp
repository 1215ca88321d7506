// SPDX-License-Identifier: MIT
#include "platform/print/printer_surface.h"

#include <utility>

#include "platform/text/cp932.h"

namespace rbt {

namespace {

constexpr float kTwipsPerPoint = 20.0F;

}  // namespace

float LineHeight(float font_size) { return font_size * kTwipsPerPoint; }

float TextWidthAt(float font_size, std::string_view text) {
  // Full-width characters are those of two bytes in code page 932.
  return static_cast<float>(Cp932Length(text)) * font_size * kTwipsPerPoint / 2.0F;
}

PrinterSurface::PrinterSurface(std::string device_name, DeviceKind kind, Delivery deliver)
    : device_name_(std::move(device_name)), kind_(kind), deliver_(std::move(deliver)) {}

void PrinterSurface::Print(std::initializer_list<std::string_view> items) {
  if (items.size() > 0) {
    std::string text;
    for (const std::string_view item : items) text += item;
    Page().emplace_back(PrintedText{CurrentX, CurrentY, std::move(text), FontName, FontSize, FontBold});
  }
  CurrentX = 0.0F;
  CurrentY += LineHeight(FontSize);
}

void PrinterSurface::Line(float x1, float y1, float x2, float y2) {
  Page().emplace_back(PrintedRule{x1, y1, x2, y2, DrawWidth});
}

float PrinterSurface::TextHeight(std::string_view /*text*/) const { return LineHeight(FontSize); }

void PrinterSurface::NewPage() {
  // Ending a page on which nothing was drawn leaves it empty.
  Page();
  at_new_page_ = true;
  CurrentX = 0.0F;
  CurrentY = 0.0F;
}

void PrinterSurface::EndDoc() {
  PrintedDocument finished = std::exchange(document_, {});
  finished.title = DocumentTitle;
  KillDoc();
  if (finished.pages.empty()) return;
  if (diversion_ && diversion_(kind_, finished)) return;
  deliver_(finished);
}

void PrinterSurface::KillDoc() {
  document_ = {};
  DocumentTitle.clear();
  at_new_page_ = true;
  CurrentX = 0.0F;
  CurrentY = 0.0F;
}

PrintedPage& PrinterSurface::Page() {
  if (document_.pages.empty()) {
    document_.device_name = device_name_;
    document_.paper_code = PaperSize;
    document_.orientation = Orientation;
  }
  if (at_new_page_) document_.pages.emplace_back();
  at_new_page_ = false;
  return document_.pages.back();
}

}  // namespace rbt

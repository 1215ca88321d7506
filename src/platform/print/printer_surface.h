// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "platform/print/paper.h"
#include "platform/print/printed_document.h"

namespace rbt {

/// Height of a line in twips, and width of a text on one line: the metrics of ＭＳ ゴシック, the same on
/// every surface and machine. A line is 1 em high (20 twips a point), a full-width character 1 em wide, a
/// half-width one half an em.
float LineHeight(float font_size);
float TextWidthAt(float font_size, std::string_view text);

/// A `DrawWidth` of 1 is 1/360 inch.
inline constexpr double kTwipsPerDrawWidth = kTwipsPerInch / 360.0;

/// Whether a device is a printer of the system or this program's own PDF device.
enum class DeviceKind { installed_printer, pdf };
inline constexpr std::string_view kPdfDeviceName = "PDF";

/// Sees a finished document before its device delivers it; true when it has taken it, and the device does not
/// get it.
using Diversion = std::function<bool(DeviceKind from, const PrintedDocument& document)>;

/// A printer as reports see it: a pen on a page. Coordinates are twips from the top left of the printable
/// page, in single precision. What is drawn is kept until `EndDoc` delivers it as one finished document (to
/// paper, a file, a preview, a test), so that a report that faults half way prints nothing.
class PrinterSurface {
 public:
  /// Sees a finished document to where it belongs.
  using Delivery = std::function<void(const PrintedDocument&)>;

  PrinterSurface(std::string device_name, DeviceKind kind, Delivery deliver);

  /// The pen: where the next text starts, its font (size in points), and the width of rules in units of 1/360
  /// inch.
  float CurrentX = 0.0F;
  float CurrentY = 0.0F;
  std::string FontName;
  float FontSize = 10.0F;
  bool FontBold = false;
  std::int32_t DrawWidth = 1;

  /// The paper, as it is at the first drawing of a document: code and orientation of
  /// `platform/print/paper.h`.
  std::int32_t PaperSize = kPaperA4;
  std::int32_t Orientation = kPortrait;
  /// Sides of a custom sheet in twips, 0 where there is none.
  float PageHeight = 0.0F;
  float PageWidth = 0.0F;

  /// The title of the document that is being drawn; it goes with it.
  std::string DocumentTitle;

  const std::string& DeviceName() const { return device_name_; }
  DeviceKind Kind() const { return kind_; }

  /// Writes the items one after the other at the pen and moves to the next line: `CurrentY` grows by one
  /// line, `CurrentX` is 0. Without items it only moves.
  void Print(std::initializer_list<std::string_view> items = {});
  /// The pen stays where it is.
  void Line(float x1, float y1, float x2, float y2);
  float TextWidth(std::string_view text) const { return TextWidthAt(FontSize, text); }
  float TextHeight(std::string_view text) const;
  /// Ends the page; the next drawing starts the one after it, so that no empty page follows the last.
  void NewPage();
  /// Delivers the document. The pen goes back to the top left; font, rule width and paper stay. A document on
  /// which nothing was drawn is not delivered.
  void EndDoc();
  /// Forgets what was drawn since the last `EndDoc`.
  void KillDoc();
  /// Shows finished documents to `diversion` first; an empty one lets all pass.
  void Divert(Diversion diversion) { diversion_ = std::move(diversion); }

 private:
  PrintedPage& Page();

  std::string device_name_;
  DeviceKind kind_;
  Delivery deliver_;
  Diversion diversion_;
  PrintedDocument document_;
  bool at_new_page_ = true;
};

}  // namespace rbt

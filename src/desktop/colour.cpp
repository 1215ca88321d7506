// SPDX-License-Identifier: MIT
#include "desktop/colour.h"

#include <QApplication>
#include <QColorDialog>

#include "desktop/wait_sign.h"

namespace rbt {

namespace {

constexpr std::int32_t kByte = 0xFF;
constexpr int kGreenShift = 8;
constexpr int kBlueShift = 16;

}  // namespace

QColor ColourOfRgb(std::int32_t rgb) {
  return {rgb & kByte, (rgb >> kGreenShift) & kByte, (rgb >> kBlueShift) & kByte};
}

std::int32_t RgbOfColour(const QColor& colour) {
  return colour.red() | (colour.green() << kGreenShift) | (colour.blue() << kBlueShift);
}

std::optional<std::int32_t> AskColour(std::string_view title, std::int32_t rgb) {
  QColorDialog dialog(ColourOfRgb(rgb), QApplication::activeWindow());
  dialog.setObjectName("cdgcolor");
  dialog.setWindowTitle(QString::fromUtf8(title));
  // One dialog everywhere: the desktop's own may know neither the title nor Esc.
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  const WorkAtRest rest;
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return RgbOfColour(dialog.currentColor());
}

}  // namespace rbt

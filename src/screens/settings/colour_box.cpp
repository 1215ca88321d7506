// SPDX-License-Identifier: MIT
#include "screens/settings/colour_box.h"

#include <QPainter>

#include "desktop/colour.h"

namespace rbt {

ColourBox::ColourBox(QWidget* parent) : QPushButton(parent) {}

void ColourBox::SetRgb(std::int32_t rgb) {
  rgb_ = rgb;
  update();
}

void ColourBox::paintEvent(QPaintEvent*) {
  constexpr int kFocusWidth = 3;
  constexpr int kGap = kFocusWidth + 2;
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  // A light gap keeps the frame visible round a dark colour.
  painter.fillRect(rect().adjusted(kGap, kGap, -kGap, -kGap), ColourOfRgb(rgb_));
  const int width = hasFocus() ? kFocusWidth : 1;
  painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText), width,
                      Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  const int inset = width / 2;
  painter.drawRect(rect().adjusted(inset, inset, -inset - 1, -inset - 1));
}

}  // namespace rbt

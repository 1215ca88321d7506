// SPDX-License-Identifier: MIT
#include "screens/planning/advice_picture.h"

#include <algorithm>
#include <utility>

#include <QPainter>

#include "desktop/texts.h"

namespace rbt {

namespace {

constexpr int kFrameMargin = 10;
constexpr int kRadius = 4;

QString LossText(double percent) { return QString::number(percent, 'f', 3); }

}  // namespace

AdvicePicture::AdvicePicture(QWidget* parent) : QWidget(parent) {}

void AdvicePicture::Show(AdviceCurve curve) {
  curve_ = std::move(curve);
  update();
}

QSize AdvicePicture::sizeHint() const { return {420, 360}; }

QSize AdvicePicture::minimumSizeHint() const { return {260, 160}; }

/// Between the axes: beside it stands the largest loss, above it the title, below it the counts.
QRect AdvicePicture::PlotRect() const {
  const int line = fontMetrics().height();
  const int beside = fontMetrics().horizontalAdvance(LossText(100.0));
  return rect().adjusted(kFrameMargin + beside, kFrameMargin + 3 * line, -(kFrameMargin + beside / 2),
                         -(kFrameMargin + 2 * line));
}

QPoint AdvicePicture::PlaceOf(const AdviceMark& mark) const {
  const QRect plot = PlotRect();
  double most = 0.0;
  for (const AdviceMark& each : curve_.marks) most = std::max(most, each.loss_percent);
  const int steps = std::max(1, curve_.marks.back().count - 1);
  const double up = most > 0.0 ? mark.loss_percent / most : 0.0;
  return {plot.left() + plot.width() * (mark.count - 1) / steps,
          plot.bottom() - static_cast<int>(plot.height() * std::max(0.0, up))};
}

void AdvicePicture::PaintAxes(QPainter& painter) const {
  const QRect plot = PlotRect();
  const int line = fontMetrics().height();
  painter.drawText(QRect(kFrameMargin, kFrameMargin, width() - 2 * kFrameMargin, line), Qt::AlignCenter,
                   Text(curve_.steel) + QStringLiteral("　定尺の種類とロス %"));
  painter.drawLine(plot.bottomLeft(), plot.bottomRight());
  painter.drawLine(plot.topLeft(), plot.bottomLeft());
  painter.drawText(QRect(0, plot.bottom() - line / 2, plot.left() - kRadius, line), Qt::AlignRight,
                   LossText(0.0));
}

void AdvicePicture::PaintMark(QPainter& painter, std::size_t index) const {
  const AdviceMark& mark = curve_.marks[index];
  const QPoint at = PlaceOf(mark);
  const int line = fontMetrics().height();
  const QString loss = LossText(mark.loss_percent);
  const int half = fontMetrics().horizontalAdvance(loss) / 2 + 1;
  const bool current = index == curve_.current;
  painter.setBrush(palette().color(current ? QPalette::Text : QPalette::Base));
  painter.drawEllipse(at, kRadius, kRadius);
  const QRect above(at.x() - half, at.y() - kRadius - line, 2 * half, line);
  painter.fillRect(above, palette().color(QPalette::Base));  // the line does not strike through it
  painter.drawText(above, Qt::AlignCenter, loss);
  painter.drawText(QRect(at.x() - half, PlotRect().bottom() + kRadius, 2 * half, line), Qt::AlignCenter,
                   QString::number(mark.count));
}

void AdvicePicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  if (curve_.marks.empty()) return;
  PaintAxes(painter);
  for (std::size_t mark = 1; mark < curve_.marks.size(); ++mark) {
    painter.drawLine(PlaceOf(curve_.marks[mark - 1]), PlaceOf(curve_.marks[mark]));
  }
  for (std::size_t mark = 0; mark < curve_.marks.size(); ++mark) PaintMark(painter, mark);
}

}  // namespace rbt

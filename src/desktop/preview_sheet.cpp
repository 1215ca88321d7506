// SPDX-License-Identifier: MIT
#include "desktop/preview_sheet.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include "desktop/painting/painting_surface.h"

namespace rbt {

namespace {

constexpr double kWholePercent = 100.0;
constexpr std::array kZoomSteps = {25.0,  33.0,  50.0,  67.0,  75.0,  90.0,
                                   100.0, 125.0, 150.0, 200.0, 300.0, 400.0};
/// A zoom this close to a step stands on it.
constexpr double kSameStep = 0.5;
constexpr double kSmallestPercent = 5.0;
constexpr int kSheetMargin = 16;
constexpr int kShadow = 4;
constexpr int kScrollStep = 40;
constexpr int kWheelStep = QWheelEvent::DefaultDeltasPerStep;

const QColor kGround("#8d98a3");
const QColor kEdge("#4a5560");
const QColor kShade(0, 0, 0, 70);

double StepAbove(double percent) {
  const auto* step = std::find_if(kZoomSteps.begin(), kZoomSteps.end(),
                                  [&](double each) { return each > percent + kSameStep; });
  return step == kZoomSteps.end() ? percent : *step;
}

double StepBelow(double percent) {
  double below = percent;
  for (const double step : kZoomSteps) {
    if (step < percent - kSameStep) below = step;
  }
  return below;
}

/// A hairline at the sheet's edge lies on one row of pixels only where the sheet starts on a whole one.
double OnDevicePixel(double place, double ratio) { return std::round(place * ratio) / ratio; }

}  // namespace

PreviewSheet::PreviewSheet(QWidget* parent) : QAbstractScrollArea(parent) {
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) bar->setSingleStep(kScrollStep);
}

int PreviewSheet::Margin() { return kSheetMargin; }

double PreviewSheet::ScaleAt(double percent) const {
  return logicalDpiX() / static_cast<double>(kTwipsPerInch) * percent / kWholePercent;
}

void PreviewSheet::ShowPage(const PrintedPage& page, const SheetSize& sheet) {
  page_ = &page;
  sheet_ = sheet;
  LayOut();
  horizontalScrollBar()->setValue(0);
  verticalScrollBar()->setValue(0);
}

void PreviewSheet::SetFit(Fit fit) {
  fit_ = fit;
  LayOut();
}

void PreviewSheet::SetPercent(double percent) {
  fit_ = Fit::none;
  Rescale(percent, viewport()->rect().center());
}

void PreviewSheet::ZoomIn() { StepZoom(1, viewport()->rect().center()); }
void PreviewSheet::ZoomOut() { StepZoom(-1, viewport()->rect().center()); }

void PreviewSheet::StepZoom(int steps, const QPointF& anchor) {
  double percent = percent_;
  for (; steps > 0; --steps) percent = StepAbove(percent);
  for (; steps < 0; ++steps) percent = StepBelow(percent);
  fit_ = Fit::none;
  Rescale(percent, anchor);
}

void PreviewSheet::Rescale(double percent, const QPointF& anchor) {
  const QRectF before = SheetPlace();
  const double grown = percent / percent_;
  percent_ = percent;
  LayOut();
  const QPointF held = (anchor - before.topLeft()) * grown;
  const QPointF moved = SheetPlace().topLeft() + held - anchor;
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(moved.x()));
  verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(moved.y()));
}

double PreviewSheet::FittingPercent() const {
  const double unit = ScaleAt(kWholePercent);
  // The room without scroll bars, lest one that comes or goes changes the zoom that it came from.
  const QSize room = maximumViewportSize() - QSize(2 * kSheetMargin, 2 * kSheetMargin);
  const double high = room.height() / (sheet_.height * unit);
  double wide = room.width() / (sheet_.width * unit);
  if (fit_ == Fit::width && wide > high) {
    wide = (room.width() - verticalScrollBar()->sizeHint().width()) / (sheet_.width * unit);
  }
  const double fitting = fit_ == Fit::whole ? std::min(wide, high) : wide;
  return std::max(kSmallestPercent, fitting * kWholePercent);
}

void PreviewSheet::LayOut() {
  if (page_ == nullptr) return;
  if (fit_ != Fit::none) percent_ = FittingPercent();
  const int across = static_cast<int>(sheet_.width * Scale()) + 2 * kSheetMargin;
  const int down = static_cast<int>(sheet_.height * Scale()) + 2 * kSheetMargin;
  // Whether a bar shows takes room from the other one; two rounds settle it.
  for (int round = 0; round < 2; ++round) {
    const QSize room = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, across - room.width()));
    verticalScrollBar()->setRange(0, std::max(0, down - room.height()));
    horizontalScrollBar()->setPageStep(room.width());
    verticalScrollBar()->setPageStep(room.height());
  }
  viewport()->update();
  if (on_zoom) on_zoom();
}

QRectF PreviewSheet::SheetPlace() const {
  const double width = sheet_.width * Scale();
  const double height = sheet_.height * Scale();
  const QSize room = viewport()->size();
  double x = kSheetMargin - horizontalScrollBar()->value();
  double y = kSheetMargin - verticalScrollBar()->value();
  if (horizontalScrollBar()->maximum() == 0) x = (room.width() - width) / 2;
  if (verticalScrollBar()->maximum() == 0) y = (room.height() - height) / 2;
  const double ratio = devicePixelRatioF();
  return {OnDevicePixel(x, ratio), OnDevicePixel(y, ratio), width, height};
}

void PreviewSheet::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), kGround);
  if (page_ == nullptr) return;
  const QRectF place = SheetPlace();
  painter.fillRect(place.translated(kShadow, kShadow), kShade);
  painter.fillRect(place, Qt::white);
  painter.setPen(QPen(kEdge, 0));
  painter.drawRect(place);
  // Rules stay crisp without smoothing: one thinner than a pixel is a pixel wide.
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setClipRect(place);
  painter.translate(place.topLeft());
  painter.scale(Scale(), Scale());
  PaintPage(painter, *page_);
}

void PreviewSheet::resizeEvent(QResizeEvent*) { LayOut(); }

void PreviewSheet::wheelEvent(QWheelEvent* event) {
  event->accept();
  const bool zooms = (event->modifiers() & Qt::ControlModifier) != 0;
  const bool turns = !zooms && verticalScrollBar()->maximum() == 0;
  if (!zooms && !turns) {
    wheel_ = 0;
    QAbstractScrollArea::wheelEvent(event);
    return;
  }
  wheel_ += event->angleDelta().y();
  const int steps = wheel_ / kWheelStep;
  wheel_ -= steps * kWheelStep;
  if (steps == 0) return;
  if (zooms) {
    StepZoom(steps, event->position());
  } else if (on_turn) {
    on_turn(steps > 0 ? -1 : 1);
  }
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "screens/planning/plan_picture.h"

#include <algorithm>

#include <QPainter>
#include <QScrollBar>

#include "desktop/texts.h"

namespace rbt {

namespace {

constexpr int kMargin = 8;
constexpr int kGap = 10;
constexpr int kShownBars = 2;

}  // namespace

PlanPicture::PlanPicture(QWidget* parent) : QAbstractScrollArea(parent) {
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void PlanPicture::Show(const std::vector<PlanBarView>& bars, int longest_mm) {
  bars_ = bars;
  longest_mm_ = std::max(1, longest_mm);
  SetRange();
  viewport()->update();
}

int PlanPicture::BarHeight() const { return fontMetrics().height() + 8; }

int PlanPicture::BlockHeight() const { return 2 * fontMetrics().height() + BarHeight() + kGap; }

QSize PlanPicture::sizeHint() const { return {600, kShownBars * BlockHeight() + 2 * kMargin}; }

QSize PlanPicture::minimumSizeHint() const { return {200, BlockHeight() + 2 * kMargin}; }

void PlanPicture::SetRange() {
  const int height = static_cast<int>(bars_.size()) * BlockHeight() + 2 * kMargin;
  verticalScrollBar()->setPageStep(viewport()->height());
  verticalScrollBar()->setSingleStep(BlockHeight());
  verticalScrollBar()->setRange(0, std::max(0, height - viewport()->height()));
}

void PlanPicture::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  SetRange();
}

void PlanPicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  int top = kMargin - verticalScrollBar()->value();
  for (const PlanBarView& bar : bars_) {
    const bool in_sight = top + BlockHeight() > 0 && top < viewport()->height();
    if (in_sight) PaintBar(painter, bar, top);
    top += BlockHeight();
  }
}

void PlanPicture::PaintBar(QPainter& painter, const PlanBarView& bar, int top) const {
  const int width = viewport()->width() - 2 * kMargin;
  const auto x = [&](std::int64_t mm) {
    return kMargin + static_cast<int>(static_cast<double>(mm) * width / longest_mm_);
  };
  const int line = fontMetrics().height();
  const auto text = [&](int y, const std::string& words) {
    painter.drawText(QRect(kMargin, y, width, line), Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(Text(words), Qt::ElideRight, width));
  };
  text(top, bar.head);
  const QRect whole(QPoint(kMargin, top + line), QPoint(x(bar.stock_mm), top + line + BarHeight()));
  if (bar.left_mm > 0) {
    painter.fillRect(QRect(QPoint(x(bar.stock_mm - bar.left_mm), whole.top()), whole.bottomRight()),
                     QBrush(palette().color(QPalette::Text), Qt::BDiagPattern));
  }
  painter.drawRect(whole);
  for (std::size_t piece = 0; piece < bar.marks.size(); ++piece) {
    const int end = std::min(whole.right(), x(bar.marks[piece]));
    painter.drawLine(end, whole.top(), end, whole.bottom());
    const QRect room(QPoint(x(bar.marks[piece] - bar.cuts[piece]), whole.top()), QPoint(end, whole.bottom()));
    const QString length = QString::number(bar.cuts[piece]);
    if (fontMetrics().horizontalAdvance(length) < room.width())
      painter.drawText(room, Qt::AlignCenter, length);
  }
  text(whole.bottom() + 1, bar.rows);
}

}  // namespace rbt

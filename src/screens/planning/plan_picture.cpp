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
constexpr int kBelowBar = 3;
constexpr int kShownBars = 2;

/// The words on as many lines as they need; a page stays with its line.
QStringList Wrapped(const std::string& words, const QFontMetrics& metrics, int width) {
  QStringList lines(QString{});
  for (const QString& word : Text(words).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    const QString longer = lines.back().isEmpty() ? word : lines.back() + QLatin1Char(' ') + word;
    if (lines.back().isEmpty() || metrics.horizontalAdvance(longer) <= width) {
      lines.back() = longer;
    } else {
      lines << word;
    }
  }
  return lines;
}

}  // namespace

PlanPicture::PlanPicture(QWidget* parent) : QAbstractScrollArea(parent) {
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void PlanPicture::Show(const std::vector<PlanBarView>& bars, int longest_mm) {
  bars_ = bars;
  longest_mm_ = std::max(1, longest_mm);
  LayOut();
  viewport()->update();
}

int PlanPicture::BarHeight() const { return fontMetrics().height() + 8; }

int PlanPicture::Width() const { return viewport()->width() - 2 * kMargin; }

int PlanPicture::BlockHeight(int places) const {
  return (1 + places) * fontMetrics().height() + BarHeight() + kBelowBar + kGap;
}

QSize PlanPicture::sizeHint() const { return {600, kShownBars * BlockHeight(1) + 2 * kMargin}; }

QSize PlanPicture::minimumSizeHint() const { return {200, BlockHeight(1) + 2 * kMargin}; }

void PlanPicture::LayOut() {
  tops_.assign(1, kMargin);
  for (const PlanBarView& bar : bars_) {
    const auto places = Wrapped(bar.rows, fontMetrics(), Width()).size();
    tops_.push_back(tops_.back() + BlockHeight(static_cast<int>(places)));
  }
  verticalScrollBar()->setPageStep(viewport()->height());
  verticalScrollBar()->setSingleStep(BlockHeight(1));
  verticalScrollBar()->setRange(0, std::max(0, tops_.back() + kMargin - viewport()->height()));
}

void PlanPicture::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  LayOut();
}

void PlanPicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  const int scrolled = verticalScrollBar()->value();
  for (std::size_t bar = 0; bar < bars_.size(); ++bar) {
    const bool in_sight = tops_[bar + 1] > scrolled && tops_[bar] - scrolled < viewport()->height();
    if (in_sight) PaintBar(painter, bars_[bar], tops_[bar] - scrolled);
  }
}

int PlanPicture::X(std::int64_t mm) const {
  return kMargin + static_cast<int>(static_cast<double>(mm) * Width() / longest_mm_);
}

void PlanPicture::PaintBar(QPainter& painter, const PlanBarView& bar, int top) const {
  const int line = fontMetrics().height();
  const auto text = [&](int y, const QString& words) {
    painter.drawText(QRect(kMargin, y, Width(), line), Qt::AlignLeft | Qt::AlignVCenter, words);
  };
  text(top, fontMetrics().elidedText(Text(bar.head), Qt::ElideRight, Width()));
  const QRect whole(QPoint(kMargin, top + line), QPoint(X(bar.stock_mm), top + line + BarHeight()));
  PaintPieces(painter, bar, whole);
  int y = whole.bottom() + kBelowBar;
  for (const QString& places : Wrapped(bar.rows, fontMetrics(), Width())) {
    text(y, places);
    y += line;
  }
}

void PlanPicture::PaintPieces(QPainter& painter, const PlanBarView& bar, const QRect& whole) const {
  if (bar.left_mm > 0) {
    painter.fillRect(QRect(QPoint(X(bar.stock_mm - bar.left_mm), whole.top()), whole.bottomRight()),
                     QBrush(palette().color(QPalette::Text), Qt::BDiagPattern));
  }
  if (bar.trim_mm > 0) {
    const QRect trim(whole.topLeft(), QPoint(X(bar.trim_mm), whole.bottom()));
    painter.fillRect(trim, QBrush(palette().color(QPalette::Text), Qt::Dense4Pattern));
    painter.drawLine(trim.topRight(), trim.bottomRight());
  }
  painter.drawRect(whole);
  for (std::size_t piece = 0; piece < bar.marks.size(); ++piece) {
    const int end = std::min(whole.right(), X(bar.marks[piece]));
    painter.drawLine(end, whole.top(), end, whole.bottom());
    const QRect room(QPoint(X(bar.marks[piece] - bar.cuts[piece]), whole.top()), QPoint(end, whole.bottom()));
    const QString length = QString::number(bar.cuts[piece]);
    if (fontMetrics().horizontalAdvance(length) < room.width())
      painter.drawText(room, Qt::AlignCenter, length);
  }
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <QAbstractScrollArea>

#include "platform/print/paper.h"
#include "platform/print/printed_document.h"

namespace rbt {

/// One printed page as a white sheet on a grey ground. It is drawn anew at the screen's own pixels at every
/// zoom, and only the page that is shown is drawn.
class PreviewSheet : public QAbstractScrollArea {
 public:
  /// What the zoom follows: the user, or the room that the window has.
  enum class Fit { none, whole, width };

  explicit PreviewSheet(QWidget* parent = nullptr);

  /// Shows a page from its top left corner. The page is not copied: it stays where it is while it is shown.
  void ShowPage(const PrintedPage& page, const SheetSize& sheet);

  void SetFit(Fit fit);
  Fit FitMode() const { return fit_; }
  /// The next step of the zoom; at the last one nothing happens.
  void ZoomIn();
  void ZoomOut();
  void SetPercent(double percent);
  /// 100 is the sheet's own size on a screen that tells its resolution rightly.
  double Percent() const { return percent_; }

  /// Where the sheet lies, in pixels of the viewport; reaches beyond it when it is larger.
  QRectF SheetPlace() const;
  /// Window pixels for a twip.
  double Scale() const { return ScaleAt(percent_); }
  /// Room around the sheet in pixels.
  static int Margin();

  /// Called when the zoom has changed.
  std::function<void()> on_zoom;
  /// Called with -1 or 1 when the wheel is turned where there is nothing to scroll.
  std::function<void(int pages)> on_turn;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  double ScaleAt(double percent) const;
  double FittingPercent() const;
  /// Zooms and keeps the sheet's point under `anchor`, a point of the viewport, in its place.
  void Rescale(double percent, const QPointF& anchor);
  void StepZoom(int steps, const QPointF& anchor);
  void LayOut();

  const PrintedPage* page_ = nullptr;
  SheetSize sheet_;
  Fit fit_ = Fit::whole;
  double percent_ = 100.0;
  int wheel_ = 0;  ///< eighths of a degree turned that have not yet made a step
};

}  // namespace rbt

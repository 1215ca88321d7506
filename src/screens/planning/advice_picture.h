// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "session/planning/plan_advice.h"

namespace rbt {

/// The curve of the advice: how much is lost, upwards, by how many lengths are bought, to the right. Each
/// mark bears its loss; the current one is filled.
class AdvicePicture : public QWidget {
 public:
  explicit AdvicePicture(QWidget* parent = nullptr);

  /// Nothing is drawn where the curve has no marks.
  void Show(AdviceCurve curve);
  const AdviceCurve& Curve() const { return curve_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect PlotRect() const;
  QPoint PlaceOf(const AdviceMark& mark) const;
  void PaintAxes(QPainter& painter) const;
  void PaintMark(QPainter& painter, std::size_t index) const;

  AdviceCurve curve_;
};

}  // namespace rbt

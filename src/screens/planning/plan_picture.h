// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <QAbstractScrollArea>

#include "session/planning/plan_view.h"

namespace rbt {

/// Bars drawn to scale, one below the other: a rule at each mark, the length in each piece that has room for
/// it, the rest hatched, page and line of the pieces beneath. The arrow keys scroll.
class PlanPicture : public QAbstractScrollArea {
 public:
  explicit PlanPicture(QWidget* parent = nullptr);

  void Show(const std::vector<PlanBarView>& bars, int longest_mm);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int BarHeight() const;
  int BlockHeight() const;
  void SetRange();
  void PaintBar(QPainter& painter, const PlanBarView& bar, int top) const;

  std::vector<PlanBarView> bars_;
  int longest_mm_ = 1;
};

}  // namespace rbt

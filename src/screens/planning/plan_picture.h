// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <QAbstractScrollArea>

#include "session/planning/plan_view.h"

namespace rbt {

/// Bars drawn to scale, one below the other: a rule at each mark, the length in each piece that has room for
/// it, the end that is cut off dotted, the rest hatched, page and line of the pieces beneath, on as many
/// lines as they need. The arrow keys scroll.
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
  int Width() const;
  /// With so many lines of places.
  int BlockHeight(int places) const;
  void LayOut();
  void PaintBar(QPainter& painter, const PlanBarView& bar, int top) const;
  /// Marks, lengths and the rest of a bar whose outline is `whole`.
  void PaintPieces(QPainter& painter, const PlanBarView& bar, const QRect& whole) const;
  int X(std::int64_t mm) const;

  std::vector<PlanBarView> bars_;
  std::vector<int> tops_;  ///< of the bars, and one more: the end
  int longest_mm_ = 1;
};

}  // namespace rbt

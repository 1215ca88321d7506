// SPDX-License-Identifier: MIT
#include "screens/panels/page_range_panel.h"

#include "platform/numbers/number_words.h"
#include "shell/context/site_context.h"
#include "tally/selection.h"
#include "ui_page_range_panel.h"

namespace rbt {

namespace {

constexpr int kMostDigits = 5;  // of a 16-bit number

}  // namespace

PageRangePanel::PageRangePanel(QWidget* parent)
    : RangePanel(parent), ui_(std::make_unique<Ui::PageRangePanel>()) {
  ui_->setupUi(this);
  SetBoxes({ui_->txtStartPage, ui_->txtStartGyo, ui_->txtEndPage, ui_->txtEndGyo}, kMostDigits);
}

PageRangePanel::~PageRangePanel() = default;

void PageRangePanel::FillFromSchedule(Database& site) {
  const std::optional<PositionRange> whole = WholePositionRange(site, Selection.TallyKind);
  ui_->lblNoRows->setVisible(!whole.has_value());
  for (QWidget* control : findChildren<QWidget*>()) {
    if (control != ui_->lblNoRows) control->setVisible(whole.has_value());
  }
  if (!whole) return;
  SetNumber(0, whole->first.page);
  SetNumber(1, whole->first.line);
  SetNumber(2, whole->last.page);
  SetNumber(3, whole->last.line);
}

PositionRange PageRangePanel::Entered() const { return {{Number(0), Number(1)}, {Number(2), Number(3)}}; }

std::optional<RangeRefusal> PageRangePanel::Refusal(std::size_t box) const {
  Database& site = *SiteContext.WorkDatabase;
  const ScheduleRows rows{
      [&site](std::int32_t page) { return site.HasRows(RowsOfPage(page)); },
      [&site](const SchedulePosition& position) { return site.HasRows(RowsOfPosition(position)); }};
  return PositionRefusal(static_cast<PositionBox>(box), Entered(), rows);
}

void PageRangePanel::WriteSelection() const {
  const auto number = [this](std::size_t box) {
    return ToInt16(Number(box), Boxes().at(box)->objectName().toStdString());
  };
  Selection.StartPage = number(0);
  Selection.StartLine = number(1);
  Selection.EndPage = number(2);
  Selection.EndLine = number(3);
}

}  // namespace rbt

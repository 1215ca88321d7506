// SPDX-License-Identifier: MIT
#include "session/result/range_input.h"

#include <fmt/format.h>

#include "platform/numbers/number_words.h"
#include "shell/context/site_context.h"

namespace rbt {

namespace {

/// Start page and line, end page and line.
class PositionInput : public RangeInput {
 public:
  PositionInput() : RangeInput({"txtStartPage", "txtStartGyo", "txtEndPage", "txtEndGyo"}) {}

  void FillFromSchedule(Database& site) override {
    const std::optional<PositionRange> whole = WholePositionRange(site, Selection.TallyKind);
    SetHasRows(whole.has_value());
    if (!whole) return;
    SetNumber(0, whole->first.page);
    SetNumber(1, whole->first.line);
    SetNumber(2, whole->last.page);
    SetNumber(3, whole->last.line);
  }

  bool GivesWay() const override { return true; }

  std::optional<RangeRefusal> Refusal(std::size_t box) const override {
    const PositionRange entered{{Number(0), Number(1)}, {Number(2), Number(3)}};
    return PositionRefusal(static_cast<PositionBox>(box), entered, RowsOf(*SiteContext.WorkDatabase));
  }

  void WriteTo(SelectionData& selection) const override {
    TakePositions(selection, {{ShortNumber(0), ShortNumber(1)}, {ShortNumber(2), ShortNumber(3)}});
  }

  std::string InWords(const std::vector<std::string>& boxes) const override {
    return fmt::format("{}頁 {}行 ～ {}頁 {}行", boxes[0], boxes[1], boxes[2], boxes[3]);
  }
};

/// First and last shape.
class ShapeInput : public RangeInput {
 public:
  ShapeInput() : RangeInput({"txtStartKeijouNo", "txtEndKeijouNo"}) {}

  void FillFromSchedule(Database& site) override {
    GetKeijouNo(site);
    SetNumber(0, whole_.first);
    SetNumber(1, whole_.last);
  }

  bool GivesWay() const override { return false; }

  std::optional<RangeRefusal> Refusal(std::size_t box) const override {
    if (box != kLastBox) return std::nullopt;
    return ShapeRangeRefusal({Number(0), Number(1)}, whole_);
  }

  void WriteTo(SelectionData& selection) const override { TakeShapes(selection, {Number(0), Number(1)}); }

  std::string InWords(const std::vector<std::string>& boxes) const override {
    return fmt::format("形状No {} ～ {}", boxes[0], boxes[1]);
  }

 private:
  static constexpr std::size_t kLastBox = 1;

  /// Smallest and largest shape of the schedule, kept while the screen is open.
  void GetKeijouNo(Database& site) { whole_ = WholeShapeRange(site); }

  ShapeRange whole_{};
};

}  // namespace

void RangeInput::TakeBack(const RangeRefusal& refusal) {
  if (refusal.back_to) SetNumber(refusal.box, *refusal.back_to);
}

std::int32_t RangeInput::Number(std::size_t box) const {
  return ToInt32(LeadingNumber(texts_.at(box)), controls_.at(box));
}

std::int16_t RangeInput::ShortNumber(std::size_t box) const {
  return ToInt16(Number(box), controls_.at(box));
}

std::unique_ptr<RangeInput> MakeRangeInput(TallyRange range) {
  switch (range) {
    case TallyRange::positions:
      return std::make_unique<PositionInput>();
    case TallyRange::shapes:
      return std::make_unique<ShapeInput>();
    case TallyRange::whole_site:
    case TallyRange::floors:
    case TallyRange::names:
      break;
  }
  return nullptr;
}

}  // namespace rbt

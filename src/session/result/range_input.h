// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "session/panels/views.h"
#include "session/result/range_rules.h"
#include "session/result/result_screen.h"
#include "store/database.h"
#include "tally/selection.h"

namespace rbt {

/// The boxes of a range as they are filled in. A box is known by its place from the left.
class RangeInput {
 public:
  using Texts = std::vector<std::string>;

  virtual ~RangeInput() = default;

  /// Puts the schedule's whole range into the boxes. Faults: `invalid use of null`.
  virtual void FillFromSchedule(Database& site) = 0;
  /// True when the grid takes the range's place once the tally has run; else the range stays above it.
  virtual bool GivesWay() const = 0;
  /// False for an empty schedule, which has no range to give.
  bool HasRows() const { return has_rows_; }

  std::size_t Boxes() const { return texts_.size(); }
  /// Takes what the user types.
  void Type(std::size_t box, std::string text) { texts_.at(box) = std::move(text); }
  /// The test that Enter in a box makes, over the open site database. Faults: `overflow` of a number beyond
  /// 32 bits, named by its control.
  virtual std::optional<RangeRefusal> Refusal(std::size_t box) const = 0;
  /// Sets a refused box back where the refusal says so.
  void TakeBack(const RangeRefusal& refusal);
  /// Faults: `overflow` of a page or line beyond 16 bits.
  virtual void WriteTo(SelectionData& selection) const = 0;

  /// Keeps the boxes as they are, as the range of the result that is shown.
  void Keep() { kept_ = texts_; }
  /// Sets the boxes back to that range.
  void BringBack() { texts_ = kept_; }
  Texts& Kept() { return kept_; }
  /// That range in words; empty before one was taken.
  std::string Told() const { return kept_.empty() ? "" : InWords(kept_); }

  RangeView View() const { return {.has_rows = has_rows_, .texts = texts_}; }

 protected:
  /// `controls` name the boxes in faults.
  explicit RangeInput(std::vector<std::string_view> controls)
      : controls_(std::move(controls)), texts_(controls_.size()) {}

  void SetNumber(std::size_t box, std::int32_t number) { texts_.at(box) = std::to_string(number); }
  std::int32_t Number(std::size_t box) const;
  std::int16_t ShortNumber(std::size_t box) const;
  virtual std::string InWords(const std::vector<std::string>& boxes) const = 0;
  void SetHasRows(bool has_rows) { has_rows_ = has_rows; }

 private:
  std::vector<std::string_view> controls_;
  Texts texts_;
  Texts kept_;
  bool has_rows_ = true;
};

/// Null where no range is asked for.
std::unique_ptr<RangeInput> MakeRangeInput(TallyRange range);

}  // namespace rbt

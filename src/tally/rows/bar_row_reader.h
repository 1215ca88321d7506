// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "store/row_walk.h"
#include "tally/rows/bar_row.h"

namespace rbt {

/// Reads `BarRow`s on a walk over 加工テーブル; columns are resolved once. Files of older versions may
/// lack 圧接太さ, ネジ数, 定着板数 and 切断: those read as null; any other that is missing throws `field not
/// found`.
class BarRowReader {
 public:
  /// The columns to narrow the walk to.
  static std::span<const std::string_view> Columns();

  explicit BarRowReader(const RowWalk& rows);

  /// A fault names the row's page and line.
  BarRow Read(const WalkedRow& found) const;

 private:
  std::array<std::optional<FieldHandle>, 15> fields_;
};

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "tally/tally_result.h"
#include "tally/views/result_grid.h"

namespace rbt {

/// How a user looks at a result.
struct ResultView {
  bool show_ulbon_only = false;
  std::array<std::string, 12> grade_names = {};  ///< steel grade of D10 to D51 at the site
};

/// Column captions of a result's grid.
std::span<const std::string_view> ResultCaptions(const TallyResult& result);
/// Its rows, texts as they stand in the cells, the Ulbon rows raised as the result has it.
GridRows ResultRows(const TallyResult& result, const ResultView& view);
/// The result as one JSON object, one field a line, closed by a line feed.
std::string ResultJson(const TallyResult& result);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tally/tally_result.h"
#include "tally/views/floorpart_grid.h"
#include "tally/views/result_grid.h"

namespace rbt {

/// How a user looks at a result.
struct ResultView {
  bool show_ulbon_only = false;
  std::array<std::string, 12> grade_names = {};  ///< steel grade of D10 to D51 at the site
  PartNames part_names = {};                     ///< of the parts 1 to 10 at the site
};

/// Column captions of a result's grid, those that are seen; the view holds the names among them.
std::vector<std::string_view> ResultCaptions(const TallyResult& result, const ResultView& view);
/// Its rows, texts as they stand in the cells, the Ulbon rows raised as the result has it.
GridRows ResultRows(const TallyResult& result, const ResultView& view);
/// Which of the rows are sums of others, counted from 0.
std::vector<std::size_t> ResultTotals(const TallyResult& result, const ResultView& view);
/// The result as one JSON object, one field a line, closed by a line feed.
std::string ResultJson(const TallyResult& result);

}  // namespace rbt

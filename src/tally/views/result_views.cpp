// SPDX-License-Identifier: MIT
#include "tally/views/result_views.h"

#include "tally/kinds/tally_kinds.h"
#include "tally/views/tally_json.h"

namespace rbt {

std::span<const std::string_view> ResultCaptions(const TallyResult& /*result*/) { return kResultCaptions; }

GridRows ResultRows(const TallyResult& result, const ResultView& view) {
  return ShowTally(result.Grid(), result.selection,
                   {view.show_ulbon_only, static_cast<double>(result.ulbon_percent), view.grade_names});
}

std::string ResultJson(const TallyResult& result) {
  return TallyJson(result.Grid(), RowOf(result.kind).word, result.has_hoop_rows,
                   result.has_anchor_plate_rows);
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "cli/result_text.h"

#include <string_view>
#include <variant>
#include <vector>

#include "shell/context/reference_names.h"
#include "tally/views/grid_text.h"
#include "tally/views/result_views.h"

namespace rbt {

namespace {

/// The names that stand above the columns of parts. A site needs none for another result.
PartNames PartNamesFor(const TallyResult& result) {
  if (std::holds_alternative<TallyTable>(result.tables)) return {};
  return NamesOfParts();
}

}  // namespace

std::string ResultText(const TallyResult& result, const std::string& format) {
  if (format == "json") return ResultJson(result);
  const ResultView view{.grade_names = DiameterGradeNames(), .part_names = PartNamesFor(result)};
  const GridRows rows = ResultRows(result, view);
  const auto captions = ResultCaptions(result, view);
  return format == "csv" ? GridCsv(captions, rows) : GridTable(captions, rows);
}

}  // namespace rbt

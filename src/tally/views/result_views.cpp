// SPDX-License-Identifier: MIT
#include "tally/views/result_views.h"

#include <variant>

#include "tally/kinds/tally_kinds.h"
#include "tally/views/floorpart_json.h"
#include "tally/views/tally_json.h"

namespace rbt {
namespace {

std::vector<std::string_view> CaptionsOf(const TallyTable& /*tables*/, const ResultView& /*view*/) {
  return {kResultCaptions.begin(), kResultCaptions.end()};
}
std::vector<std::string_view> CaptionsOf(const FloorTables& /*tables*/, const ResultView& view) {
  return FloorCaptions(view.part_names);
}
std::vector<std::string_view> CaptionsOf(const PartTables& /*tables*/, const ResultView& view) {
  return PartCaptions(view.part_names);
}

GridView GridViewOf(const TallyResult& result, const ResultView& view) {
  return {view.show_ulbon_only, static_cast<double>(result.ulbon_percent), view.grade_names};
}

GridRows RowsOf(const TallyTable& tables, const TallyResult& result, const ResultView& view) {
  return ShowTally(tables, result.selection, GridViewOf(result, view));
}
GridRows RowsOf(const FloorTables& tables, const TallyResult& /*result*/, const ResultView& /*view*/) {
  return ShowFloors(tables);
}
GridRows RowsOf(const PartTables& tables, const TallyResult& /*result*/, const ResultView& /*view*/) {
  return ShowParts(tables);
}

std::string JsonOf(const TallyTable& tables, const TallyResult& result) {
  return TallyJson(tables, RowOf(result.kind).word, result.has_hoop_rows, result.has_anchor_plate_rows);
}
std::string JsonOf(const FloorTables& tables, const TallyResult& /*result*/) { return FloorJson(tables); }
std::string JsonOf(const PartTables& tables, const TallyResult& /*result*/) { return PartJson(tables); }

}  // namespace

std::vector<std::string_view> ResultCaptions(const TallyResult& result, const ResultView& view) {
  return std::visit([&](const auto& tables) { return CaptionsOf(tables, view); }, result.tables);
}

GridRows ResultRows(const TallyResult& result, const ResultView& view) {
  return std::visit([&](const auto& tables) { return RowsOf(tables, result, view); }, result.tables);
}

std::vector<std::size_t> ResultTotals(const TallyResult& result, const ResultView& view) {
  const auto* tables = std::get_if<TallyTable>(&result.tables);
  if (tables == nullptr) return {};  // floors and parts have their sums in columns and rows of their own
  return TotalRowsOfTally(*tables, result.selection, GridViewOf(result, view));
}

std::string ResultJson(const TallyResult& result) {
  return std::visit([&](const auto& tables) { return JsonOf(tables, result); }, result.tables);
}

}  // namespace rbt

// SPDX-License-Identifier: MIT
#include "cli/detail_changes.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "cli/asked_tally.h"
#include "cli/command_line.h"
#include "shell/config/settings.h"
#include "tally/detail/detail_change.h"
#include "tally/detail/detail_entry.h"
#include "tally/detail/detail_grid.h"

namespace rbt {

namespace {

/// "D19/6.0=12"; nothing for another form, and for a count of other characters.
std::optional<CellChange> ParseCellChange(std::string_view text) {
  const std::size_t slash = text.find('/');
  const std::size_t equals = text.find('=');
  if (slash == std::string_view::npos || equals == std::string_view::npos || equals < slash)
    return std::nullopt;
  const std::string_view count = text.substr(equals + 1);
  if (!IsCountText(count)) return std::nullopt;
  return CellChange{std::string(text.substr(0, slash)),
                    std::string(text.substr(slash + 1, equals - slash - 1)), std::string(count)};
}

std::optional<DetailCell> CellOf(const CellChange& change, int columns) {
  return CellOfWords(change.row, change.column, columns);
}

TallyResult Apply(TallyResult result, const PercentChange& change, int columns) {
  return RaiseBars(std::move(result), PercentOfText(change.text), columns);
}

TallyResult Apply(TallyResult result, const CellChange& change, int columns) {
  return CorrectCell(std::move(result), CellOf(change, columns).value(), CountOfText(change.count), columns);
}

}  // namespace

void AddChangeOptions(CommandLine& line, DetailChanges& changes, const std::string& percent_description) {
  const auto take_percent = [&changes](const std::string& text) {
    if (!IsPercentText(text)) return false;
    changes.emplace_back(PercentChange{text});
    return true;
  };
  const auto take_cell = [&changes](const std::string& text) {
    const std::optional<CellChange> change = ParseCellChange(text);
    if (change) changes.emplace_back(*change);
    return change.has_value();
  };
  line.RepeatedOption("--percent", "P", take_percent, percent_description);
  line.RepeatedOption(
      "--set", "ROW/COLUMN=N", take_cell,
      "a count of the purchase list: row D10 to D51, column 3.5 to 13.0, weld, thread, plate or cut");
}

void RequireCells(const DetailChanges& changes) {
  // No site is open yet, and the settings are not loaded.
  const int columns = StockColumnsInUse(ReadSetting(kUse13mColumnKey) == 1);
  for (const auto& change : changes) {
    const auto* cell = std::get_if<CellChange>(&change);
    if (cell == nullptr || CellOf(*cell, columns)) continue;
    throw UsageError("--set: the list has no cell " + cell->row + "/" + cell->column);
  }
}

void RequireChangesOfKind(const std::string& kind, const DetailChanges& changes) {
  const std::vector<std::string> words = GridTallyWords();
  const bool has_list = std::find(words.begin(), words.end(), kind) != words.end();
  if (!has_list && !changes.empty()) throw UsageError("--percent, --set: not for the floor and part tallies");
  RequireCells(changes);
}

TallyResult Changed(TallyResult result, const DetailChanges& changes) {
  const int columns = StockColumnsOf(DetailLayoutOf(Settings));
  for (const auto& change : changes) {
    result = std::visit([&](const auto& one) { return Apply(std::move(result), one, columns); }, change);
  }
  return result;
}

}  // namespace rbt

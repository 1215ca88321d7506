// SPDX-License-Identifier: MIT
#include "reports/frame/cut_figure_message.h"

#include <algorithm>
#include <cstddef>

#include <fmt/format.h>

#include "platform/text/characters.h"

namespace rbt {

namespace {

constexpr std::size_t kMostNamed = 10;

/// Words of the sheet without the blanks that spread them over their place.
std::string Closed(const std::string& words) { return ReplaceAll(ReplaceAll(words, " ", ""), "　", ""); }

std::string CellText(const CutFigure& figure) {
  const std::string row = Closed(figure.row);
  const std::string column = Closed(figure.column);
  const std::string_view between = row.empty() || column.empty() ? "" : " ";
  return fmt::format("{}頁 {}{}{}：{}", figure.page, row, between, column, figure.figure);
}

}  // namespace

std::string CutFigureMessage(const CutFigures& figures) {
  std::string text = "欄に入りきらない数字があり、左の桁が印字されません。\n";
  const std::size_t named = std::min(figures.size(), kMostNamed);
  for (std::size_t i = 0; i < named; ++i) text += "\n" + CellText(figures[i]);
  if (figures.size() > named) text += fmt::format("\nほか {} 個", figures.size() - named);
  return text;
}

}  // namespace rbt

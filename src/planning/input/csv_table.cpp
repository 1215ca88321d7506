// SPDX-License-Identifier: MIT
#include "planning/input/csv_table.h"

#include <algorithm>
#include <charconv>

#include "planning/problem/refusal.h"
#include "platform/text/characters.h"

namespace rbt::planning {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

[[noreturn]] void RefuseLine(int number, const std::string& why) {
  throw Refusal("line " + std::to_string(number) + ": " + why);
}

std::string_view Stripped(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\r'))
    text.remove_suffix(1);
  return text;
}

/// A line up to its comment, cut into cells; none when nothing stands there.
std::vector<std::string> CellsOf(std::string_view line, int number) {
  std::vector<std::string> cells(1);
  bool quoted = false;
  bool anything = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (quoted && c == '"' && i + 1 < line.size() && line[i + 1] == '"') {
      cells.back() += line[++i];
    } else if (c == '"') {
      quoted = !quoted;
    } else if (!quoted && c == '#') {
      break;
    } else if (!quoted && c == ',') {
      cells.emplace_back();
    } else {
      cells.back() += c;
    }
    anything = anything || (c != ' ' && c != '\t' && c != '\r');
  }
  if (quoted) RefuseLine(number, "a quoted cell has no end");
  if (!anything) cells.clear();
  return cells;
}

/// True when something stands behind so many cells; commas alone do not count.
bool HasMoreThan(const std::vector<std::string>& cells, std::size_t width) {
  return cells.size() > width && !std::all_of(cells.begin() + static_cast<std::ptrdiff_t>(width), cells.end(),
                                              [](const std::string& cell) { return Stripped(cell).empty(); });
}

std::string HeaderText(std::span<const std::string_view> columns, std::size_t required) {
  std::string text;
  for (std::size_t c = 0; c < columns.size(); ++c) {
    if (c >= required) text += '[';
    if (c > 0) text += ',';
    text += columns[c];
  }
  return text + std::string(columns.size() - required, ']');
}

/// The number of columns that the header names.
std::size_t ColumnsOf(const std::vector<std::string>& header, std::span<const std::string_view> columns,
                      std::size_t required, int number) {
  const auto same = [](std::string_view name, std::string_view cell) { return name == Stripped(cell); };
  const bool names_them = header.size() >= required && header.size() <= columns.size() &&
                          std::ranges::equal(columns.first(header.size()), header, same);
  if (!names_them) RefuseLine(number, "the header is not " + HeaderText(columns, required));
  return header.size();
}

}  // namespace

std::string_view CsvLine::Text(std::size_t column) const {
  return column < cells_.size() ? Stripped(cells_[column]) : std::string_view();
}

void CsvLine::Refuse(const std::string& why) const { RefuseLine(number_, why); }

std::int64_t CsvLine::Whole(std::size_t column, std::int64_t least, std::int64_t most) const {
  const std::string_view text = Text(column);
  if (text.empty()) Refuse(std::string(columns_[column]) + " is missing");
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
  if (!whole) Refuse("not a whole number: " + std::string(text));
  if (error != std::errc() || number < least || number > most) {
    Refuse(std::string(columns_[column]) + " is not from " + std::to_string(least) + " to " +
           std::to_string(most) + ": " + std::string(text));
  }
  return number;
}

std::int64_t CsvLine::WholeOr(std::size_t column, std::int64_t least, std::int64_t most,
                              std::int64_t otherwise) const {
  return IsEmpty(column) ? otherwise : Whole(column, least, most);
}

std::vector<CsvLine> ReadCsvTable(std::string_view text, std::span<const std::string_view> columns,
                                  std::size_t required) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::vector<CsvLine> lines;
  std::size_t width = 0;  // 0: the header is still to come
  for (int number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::vector<std::string> cells = CellsOf(text.substr(0, end), number);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (cells.empty()) continue;
    if (width == 0) {
      while (cells.size() > required && Stripped(cells.back()).empty()) cells.pop_back();
      width = ColumnsOf(cells, columns, required, number);
    } else if (HasMoreThan(cells, width)) {
      RefuseLine(number, "more cells than the header has");
    } else {
      lines.emplace_back(number, std::move(cells), columns);
    }
  }
  if (width == 0) RefuseLine(1, "the header is not " + HeaderText(columns, required));
  return lines;
}

}  // namespace rbt::planning

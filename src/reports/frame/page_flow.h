// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

#include "reports/frame/report_pen.h"

namespace rbt {

/// Rows that belong together and are never divided between two pages.
struct FlowBlock {
  int rows = 1;
  /// The end of the table, such as its total: it may take the rows that are kept for it below the others.
  bool closes = false;
};

/// The rows of a table that a page has room for. Groups of columns side by side are told in the same way, a
/// slot for a row.
struct PageRoom {
  int starts;  ///< a block that does not close the table starts on a page while fewer rows than these are
               ///< taken
  int rows;    ///< and ends there while no more than these are
};

/// A block on its page: its number in the table, and its first row there, from 0.
struct PlacedBlock {
  std::size_t block;
  int row;

  friend bool operator==(const PlacedBlock&, const PlacedBlock&) = default;
};
using PageOfBlocks = std::vector<PlacedBlock>;

/// Puts the blocks on pages, in their order: what does not fit carries over to the next page. A block larger
/// than a page has one to itself. Without blocks there is one page, which shows head and frame.
std::vector<PageOfBlocks> Paginate(std::span<const FlowBlock> blocks, const PageRoom& room);
/// The same for so many blocks of one row.
std::vector<PageOfBlocks> PaginateRows(std::size_t rows, int rows_on_a_page);

/// Rows that the blocks of a page take.
int RowsOn(const PageOfBlocks& page, std::span<const FlowBlock> blocks);

/// What is drawn of a page, in this order. The pen tells the page's number; a part may be left out.
struct PageDrawing {
  std::function<void(ReportPen& pen, const PageOfBlocks& page)> head;  ///< with the frame, empty or not
  std::function<void(ReportPen& pen, const PlacedBlock& block)> block;
  std::function<void(ReportPen& pen)> foot;
};

/// Draws the pages as one document.
void DrawPages(ReportPen& pen, std::span<const PageOfBlocks> pages, const PageDrawing& drawing);

}  // namespace rbt

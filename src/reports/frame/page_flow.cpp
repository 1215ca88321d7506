// SPDX-License-Identifier: MIT
#include "reports/frame/page_flow.h"

#include "platform/system/work.h"

namespace rbt {

namespace {

bool Fits(const FlowBlock& block, int taken, const PageRoom& room) {
  return (block.closes || taken < room.starts) && taken + block.rows <= room.rows;
}

}  // namespace

std::vector<PageOfBlocks> Paginate(std::span<const FlowBlock> blocks, const PageRoom& room) {
  std::vector<PageOfBlocks> pages(1);
  int taken = 0;
  for (std::size_t index = 0; index < blocks.size(); ++index) {
    if (!pages.back().empty() && !Fits(blocks[index], taken, room)) {
      pages.emplace_back();
      taken = 0;
    }
    pages.back().push_back({index, taken});
    taken += blocks[index].rows;
  }
  return pages;
}

std::vector<PageOfBlocks> PaginateRows(std::size_t rows, int rows_on_a_page) {
  return Paginate(std::vector<FlowBlock>(rows), {rows_on_a_page, rows_on_a_page});
}

int RowsOn(const PageOfBlocks& page, std::span<const FlowBlock> blocks) {
  return page.empty() ? 0 : page.back().row + blocks[page.back().block].rows;
}

void DrawPages(ReportPen& pen, std::span<const PageOfBlocks> pages, const PageDrawing& drawing) {
  for (std::size_t index = 0; index < pages.size(); ++index) {
    NotePage(static_cast<std::int64_t>(index) + 1);
    if (index > 0) {
      pen.Printer.NewPage();
      ++pen.page;
    }
    if (drawing.head) drawing.head(pen, pages[index]);
    for (const PlacedBlock& block : pages[index]) drawing.block(pen, block);
    if (drawing.foot) drawing.foot(pen);
  }
  pen.Printer.EndDoc();
}

}  // namespace rbt

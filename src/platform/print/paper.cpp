// SPDX-License-Identifier: MIT
#include "platform/print/paper.h"

#include <algorithm>
#include <utility>

namespace rbt {

const PaperRow* FindPaper(std::int32_t code) {
  const auto* found =
      std::find_if(kPapers.begin(), kPapers.end(), [&](const PaperRow& row) { return row.code == code; });
  return found == kPapers.end() ? nullptr : found;
}

SheetSize SheetOf(std::int32_t paper_code, std::int32_t orientation) {
  const PaperRow* paper = FindPaper(paper_code);
  if (paper == nullptr) paper = FindPaper(kPaperA4);
  SheetSize sheet{paper->width_mm * kTwipsPerMillimetre, paper->height_mm * kTwipsPerMillimetre};
  if (orientation == kLandscape) std::swap(sheet.width, sheet.height);
  return sheet;
}

}  // namespace rbt

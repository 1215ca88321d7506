// SPDX-License-Identifier: MIT
#include "platform/print/paper.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace rbt {

const PaperRow* FindPaper(std::int32_t code) {
  const auto* found =
      std::find_if(kPapers.begin(), kPapers.end(), [&](const PaperRow& row) { return row.code == code; });
  return found == kPapers.end() ? nullptr : found;
}

std::int32_t PaperCodeOfSheet(double width_mm, double height_mm) {
  constexpr double kTolerance = 1.0;
  const auto* found = std::find_if(kPapers.begin(), kPapers.end(), [&](const PaperRow& row) {
    return std::abs(row.width_mm - width_mm) <= kTolerance &&
           std::abs(row.height_mm - height_mm) <= kTolerance;
  });
  return found == kPapers.end() ? kCustomPaper : found->code;
}

std::string PaperCaption(std::int32_t paper_code, std::int32_t orientation) {
  const PaperRow* paper = FindPaper(paper_code);
  const std::string name(paper == nullptr ? "特別な大きさ" : paper->name);
  return name + (orientation == kLandscape ? " 横" : " 縦");
}

SheetSize SheetOf(std::int32_t paper_code, std::int32_t orientation) {
  const PaperRow* paper = FindPaper(paper_code);
  if (paper == nullptr) paper = FindPaper(kPaperA4);
  SheetSize sheet{paper->width_mm * kTwipsPerMillimetre, paper->height_mm * kTwipsPerMillimetre};
  if (orientation == kLandscape) std::swap(sheet.width, sheet.height);
  return sheet;
}

}  // namespace rbt

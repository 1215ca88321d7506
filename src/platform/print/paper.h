// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace rbt {

/// The twip is the unit of every coordinate on paper.
inline constexpr int kTwipsPerInch = 1440;
inline constexpr double kTwipsPerMillimetre = kTwipsPerInch / 25.4;

/// Printer paper codes.
inline constexpr std::int32_t kPaperA3 = 8;
inline constexpr std::int32_t kPaperA4 = 9;
inline constexpr std::int32_t kPaperB5 = 13;
inline constexpr std::int32_t kCustomPaper = 256;

/// Orientation values of a printer.
inline constexpr std::int32_t kPortrait = 1;
inline constexpr std::int32_t kLandscape = 2;

/// A sheet as it lies in portrait.
struct PaperRow {
  std::int32_t code;
  std::int32_t width_mm;
  std::int32_t height_mm;
  std::string_view name;
};

/// B5 is the Japanese one.
inline constexpr std::array<PaperRow, 3> kPapers{{
    {kPaperA3, 297, 420, "A3"},
    {kPaperA4, 210, 297, "A4"},
    {kPaperB5, 182, 257, "B5"},
}};

/// Width and height in twips.
struct SheetSize {
  double width = 0.0;
  double height = 0.0;
};

/// The row of a paper code, null for a code that the table lacks.
const PaperRow* FindPaper(std::int32_t code);
/// The code of a sheet of these sides, as it lies in portrait; systems round them in several ways, a
/// millimetre is let pass. `kCustomPaper` for a sheet that the table lacks.
std::int32_t PaperCodeOfSheet(double width_mm, double height_mm);
/// "A4 縦"; "特別な大きさ 縦" for a code that the table lacks.
std::string PaperCaption(std::int32_t paper_code, std::int32_t orientation);
/// The sheet as it is printed on: landscape lies on its long side. A code that the table lacks is taken as
/// A4.
SheetSize SheetOf(std::int32_t paper_code, std::int32_t orientation);

}  // namespace rbt

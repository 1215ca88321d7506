// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace rbt {

/// Material kind, column `予備2`. Null and 0 count as deformed.
enum class MaterialKind : std::int32_t { deformed = 1, ulbon = 2, high_strength = 3, threaded = 4, slit = 5 };

/// The word by which captions and totals name a kind, a form likewise.
struct KindWord {
  MaterialKind kind;
  std::string_view word;
};
inline constexpr std::array<KindWord, 5> kKindWords{{
    {MaterialKind::deformed, "異形"},
    {MaterialKind::ulbon, "ウルボン"},
    {MaterialKind::high_strength, "高強度"},
    {MaterialKind::threaded, "ネジ"},
    {MaterialKind::slit, "スリット"},
}};

/// Material form, column `予備3`.
enum class MaterialForm : std::int32_t { unclassified = 0, raw = 1, raw_bent = 2, cut = 3, cut_bent = 4 };

struct FormWord {
  MaterialForm form;
  std::string_view word;
};
inline constexpr std::array<FormWord, 4> kFormWords{{
    {MaterialForm::raw, "生材"},
    {MaterialForm::raw_bent, "生材加工"},
    {MaterialForm::cut, "切断"},
    {MaterialForm::cut_bent, "切断加工"},
}};

/// Names, each closed by one ideographic blank, that mark slit bars of 部位 3.
inline constexpr std::array<std::string_view, 2> kSlitNames{"縦ｽﾘｯﾄ筋　", "横ｽﾘｯﾄ筋　"};

/// Cut lengths in mm at which a bar is used whole: the stock lengths from 3.5 m to 12 m.
inline constexpr std::array<int, 18> kStockCutLengths{3500, 4000,  4500,  5000,  5500,  6000,
                                                      6500, 7000,  7500,  8000,  8500,  9000,
                                                      9500, 10000, 10500, 11000, 11500, 12000};

constexpr bool IsStockCutLength(int millimetres) {
  return std::find(kStockCutLengths.begin(), kStockCutLengths.end(), millimetres) != kStockCutLengths.end();
}

}  // namespace rbt

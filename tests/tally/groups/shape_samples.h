// SPDX-License-Identifier: MIT
// Rows and short words for the tests of the two tallies by shape.
#pragma once

#include <cstdint>

#include "support/kilograms.h"
#include "support/schedule_site.h"
#include "tally/groups/shape_tally.h"
#include "tally/selection.h"

namespace rbt::test {

inline void TallyShapes(std::int32_t first = 1, std::int32_t last = 200) {
  Selection.ShapeStart = first;
  Selection.ShapeEnd = last;
  Keijou_Jyuuryo_Syukei();
}

/// Page 1, from line 1 on.
inline void TallyLines(std::int32_t last = 99) { PKeijou_Jyuuryo_Syukei(1, 1, 1, last); }

/// 7 pieces of 2.0 m: 4 bars of 4.0 m by the engine.
inline const Fields kSevenOf2m = {{"伸切寸", Number(2000)}, {"合計", Number(7)}};
/// 9 hoops of 2.0 m, D19: 5 bars of 4.0 m.
inline const Fields kHoops = {
    {"形状No", Number(87)}, {"伸切寸", Number(2000)}, {"合計", Number(9)}, {"圧接", Number(9)}};
inline const Fields kUlbon = {{"太さ", Number(9)},
                              {"予備2", Number(2)},
                              {"合計", Number(10)},
                              {"伸切寸", Number(1500)},
                              {"形状No", Number(5)}};

inline Fields With(Fields fields, const Fields& more) {
  fields.insert(fields.end(), more.begin(), more.end());
  return fields;
}

/// A row of each kind whose threads are the kind's bit, and 16 threads of no kind.
inline void AddRowOfEachKind(ScheduleSite& site) {
  const Value kinds[] = {Number(1), Number(4), Number(3), Number(5), kNull};
  for (int i = 0; i < 5; ++i) site.AddRow({{"予備2", kinds[i]}, {"ネジ数", Number(1 << i)}});
}

}  // namespace rbt::test

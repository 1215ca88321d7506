// SPDX-License-Identifier: MIT
// Fields of rows for the tests of the tallies that read a schedule.
#pragma once

#include "support/schedule_site.h"

namespace rbt::test {

inline const Fields kHoop = {{"形状No", Number(87)}, {"圧接", Number(4)}};
inline const Fields kUlbon = {{"太さ", Number(9)},
                              {"予備2", Number(2)},
                              {"合計", Number(10)},
                              {"伸切寸", Number(1500)},
                              {"伸定尺", Value{5.5}}};

inline Fields With(Fields fields, const Fields& more) {
  fields.insert(fields.end(), more.begin(), more.end());
  return fields;
}

}  // namespace rbt::test

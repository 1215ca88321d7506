// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "reports/frame/number_field.h"

namespace rbt {

/// What a cell shows of a figure: a zero leaves it empty.
inline CellValue ShownFigure(Currency kilograms) {
  return kilograms == Currency() ? CellValue() : CellValue(kilograms);
}
inline CellValue ShownFigure(std::int32_t count) {
  return count == 0 ? CellValue() : CellValue(std::int64_t{count});
}

}  // namespace rbt

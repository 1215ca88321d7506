// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "data/code_mask.h"
#include "data/materials.h"

namespace rbt {

/// The forms of a mask in their order.
inline constexpr std::array kMaskedForms{MaterialForm::raw, MaterialForm::raw_bent, MaterialForm::cut,
                                         MaterialForm::cut_bent};

/// Material forms that a tally takes in: 1 生材, 2 生材加工, 4 切断, 8 切断加工. None limits nothing, as all
/// do.
using FormMask = CodeMask<std::int16_t, kMaskedForms>;

inline constexpr FormMask kAllForms = FormMask::All();

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "data/code_mask.h"
#include "data/materials.h"

namespace rbt {

/// The kinds of a mask in their order. Ulbon is chosen apart and has no place in it.
inline constexpr std::array kMaskedKinds{MaterialKind::deformed, MaterialKind::threaded,
                                         MaterialKind::high_strength, MaterialKind::slit};

/// Material kinds that a tally takes in: 1 異形, 2 ネジ, 4 高強度, 8 スリット. None is for the floor
/// and part tallies: Ulbon alone.
using KindMask = CodeMask<std::int32_t, kMaskedKinds>;

inline constexpr KindMask kAllKinds = KindMask::All();

}  // namespace rbt

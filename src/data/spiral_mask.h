// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "data/code_mask.h"
#include "data/materials.h"

namespace rbt {

/// The kinds that spiral reinforcement comes in, in the order in which tables and grids have them. Other
/// places than in a `KindMask`.
inline constexpr std::array kSpiralKinds{MaterialKind::deformed, MaterialKind::ulbon,
                                         MaterialKind::high_strength};

/// Kinds of spirals: 1 異形, 2 ウルボン, 4 高強度.
using SpiralMask = CodeMask<std::int32_t, kSpiralKinds>;

}  // namespace rbt

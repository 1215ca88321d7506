// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "data/parts.h"

namespace rbt {

/// Name of a steel grade from the names read at load: code 1 to 10; empty for 0, and for any other code.
std::string Get_SDName(std::int32_t code);
/// The grade names of D10 to D51 at the bound site, from its row in the open master database.
std::array<std::string, 12> DiameterGradeNames();
/// Where the bars of D10 to D51 come from.
struct BarOrigins {
  std::array<std::string, 12> grades = {};
  std::array<std::string, 12> makers = {};  ///< empty where none is told
};
/// At the bound site, likewise.
BarOrigins ReadBarOrigins();
/// 部位名 of a part from the open master database, in the naming that the setting `出荷日` selects (2: the
/// second); empty when it is null or the part has no row.
std::string Get_BuiNa(std::int32_t part);
/// The names of the parts 1 to 10.
std::array<std::string, kLastNamedPart> NamesOfParts();

}  // namespace rbt

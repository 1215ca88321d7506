// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "tally/selection.h"

namespace rbt {

/// Names are asked for ten at a time.
inline constexpr std::size_t kNamesInBlock = 10;

/// The blocks of a list of numbers, in its order, each of one name at least: no block for no name.
std::vector<std::span<const std::int32_t>> BlocksOf(std::span<const std::int32_t> numbers);

/// The rows of a block of names of the selected forms and kinds, for the presence probes. At least one name.
std::string NameStatementSoFar(const SelectionData& selection, std::span<const std::int32_t> block);
/// The statement of the tally of registered names. Both modes ask for their shapes whatever the probes found;
/// hoops that are left out take the rows without a shape with them.
std::string NameStatement(const SelectionData& selection, std::span<const std::int32_t> block);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "cli/options.h"
#include "tally/names/name_list.h"

namespace rbt {

/// Opens the site and weighs its registered names, as their screen does when it opens: the list by number.
/// All marks are taken away, then the names of these numbers are marked. Throws what opening and weighing
/// throw.
std::vector<RegisteredName> WeighedNames(const CommonOptions& common,
                                         std::span<const std::int32_t> marked = {});

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace rbt::bench {

/// Binds the program to site 1, 2 or 3 of a demonstration root with so many rows a site, made once; the 13.0
/// m column is on.
void BindSite(std::int64_t rows, int site);

}  // namespace rbt::bench

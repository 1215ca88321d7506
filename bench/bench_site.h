// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>

namespace rbt::bench {

/// Makes a demonstration root of so many sites of so many rows below the folder. Throws `std::runtime_error`.
std::filesystem::path MakeDemoRoot(const std::filesystem::path& root, std::int64_t rows, int sites);

/// Binds the program to site 1, 2 or 3 of a demonstration root with so many rows a site, made once; the 13.0
/// m column is on.
void BindSite(std::int64_t rows, int site);

}  // namespace rbt::bench

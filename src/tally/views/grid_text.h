// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "tally/views/result_grid.h"

namespace rbt {

/// The rows as lines under a line of captions, columns padded by display width and two blanks apart: the
/// first column to the left, the others to the right.
std::string GridTable(std::span<const std::string_view> captions, const GridRows& rows);
/// The same without captions.
std::string GridTable(const GridRows& rows);
/// RFC 4180 with a header line: the same cells without outer blanks and without thousands separators.
std::string GridCsv(std::span<const std::string_view> captions, const GridRows& rows);

}  // namespace rbt

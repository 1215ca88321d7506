// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "figures.h"

namespace rbt::bench {

/// What of a work is held against a limit.
enum class Figure { x_bare, peak_mb, syncs };

/// How much a work may take at a number of rows.
struct Limit {
  std::string_view work;
  std::int64_t rows;
  Figure figure;
  double most;    ///< more fails `--check`
  double wanted;  ///< where it is to come; below `most` while it is not there yet
};

std::span<const Limit> Limits();

std::string_view NameOf(Figure figure);
double FigureOf(const Figures& figures, Figure figure);

}  // namespace rbt::bench

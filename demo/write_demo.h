// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>

namespace rbt::demo {

inline constexpr std::int32_t kMostSites = 999;  ///< site numbers have three digits
inline constexpr std::int32_t kMostRows = 1'000'000;
inline constexpr std::int32_t kHighestSeed = 999'999'999;

struct DemoOptions {
  std::int32_t sites = 3;    ///< 1 to kMostSites
  std::int32_t rows = 3000;  ///< lines of each schedule, 0 to kMostRows
  std::int32_t seed = 1;     ///< 0 to kHighestSeed
};

/// Makes a root folder with demonstration sites and all files that the program reads. `root` must not exist
/// or be an empty folder; anything else throws `file` and is left as it was. Its DATA is made under a name of
/// its own and appears when it is complete; what a demonstration that was killed has left stands in no one's
/// way. The same options give the same rows on every machine.
void WriteDemo(const std::filesystem::path& root, const DemoOptions& options);

}  // namespace rbt::demo

// SPDX-License-Identifier: MIT
#include "platform/system/long_reading.h"

#include <cstdio>

#include "platform/system/services.h"

namespace rbt {

void TellLongReadingOnStandardError(const std::filesystem::path& file) {
  std::fprintf(stderr, "rbtally: reading %s, which has changed or is new here\n", file.c_str());
}

void TellOfLongReading(const std::filesystem::path& file) { Services.OnLongReading(file); }

}  // namespace rbt

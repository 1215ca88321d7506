// SPDX-License-Identifier: MIT
#include "support/sample.h"

#include <cstdlib>

namespace rbt::test {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSanitized = true;
#elif defined(__has_feature)
constexpr bool kSanitized = __has_feature(address_sanitizer);
#else
constexpr bool kSanitized = false;
#endif

}  // namespace

std::uint64_t ProblemsOf(std::uint64_t all) { return kSanitized ? all / 4 : all; }

bool IsTriedWith(std::size_t thing, std::size_t other, std::size_t others) {
  return !kSanitized || thing % others == other;
}

int SampleStep(int many) { return std::getenv("RBTALLY_SAMPLE") == nullptr ? 1 : many; }

void TryMoments(const std::function<bool(int)>& is_there) {
  const int step = SampleStep(8);
  int moment = 1;
  while (is_there(moment)) moment += step;
  if (step == 1) return;
  for (moment -= step - 1; is_there(moment);) ++moment;
}

}  // namespace rbt::test

// SPDX-License-Identifier: MIT
#include <cstdint>

#include "tally/engine/stock_engine.h"
#include "work.h"

namespace rbt::bench {

namespace {

constexpr int kCalls = 100'000;

template <typename Call>
void CallOften(Call call) {
  std::int32_t cut = 0;
  for (int i = 0; i < kCalls; ++i) {
    cut = 300 + (cut + 37) % 11'700;
    call(cut);
  }
}

}  // namespace

std::vector<Work> EngineWorks(const DemoSite& site) {
  const Currency pieces = Currency::FromInteger(17);
  constexpr std::int32_t kDiameter = 19;
  const auto in_a_tally = [pieces] {
    const EngineSettings settings = ReadEngineSettings();
    CallOften([&](std::int32_t cut) { ComputeStock(cut, pieces, kDiameter, settings); });
  };
  const auto by_itself = [pieces] {
    CallOften([&](std::int32_t cut) { Teijyaku_Keisan(cut, pieces, kDiameter); });
  };
  const auto bind = [site] { site.Bind(); };
  return {{.name = "100,000 stock lengths in a tally",
           .begin = bind,
           .run = [in_a_tally] { return CostOf(in_a_tally); }},
          {.name = "100,000 stock lengths one by one", .begin = bind, .run = [by_itself] {
             return CostOf(by_itself);
           }}};
}

}  // namespace rbt::bench

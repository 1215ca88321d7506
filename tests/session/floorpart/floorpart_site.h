// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "session/result/result_site.h"

namespace rbt::test {

/// A bar on a floor and in a part.
inline Cells On(std::int64_t floor, std::int64_t part, Cells bar) {
  bar.emplace_back("階", floor);
  bar.emplace_back("部位", part);
  return bar;
}

/// A small site for the screens of floors and parts; weights are those of ten bars of 6.0 m. Floor 1: D19 in
/// part 1 (135 kg) and the thin U 9; floor 2: an anchored D25 in part 2 (239 kg); floor 3: a welded hoop D13
/// in part 1 (60 kg).
class FloorPartSite : public SiteFixture {
 public:
  FloorPartSite() {
    AddRows({On(1, 1, TenBars(19, 1, 3)), On(1, 3, TenBars(9, 2, 0)), On(2, 2, TenBars(25, 138, 3)),
             On(3, 1, TenBars(13, 87, 3))});
  }

  /// D19 on the R floor (135 kg in part 1), the penthouse (part 2), no floor (part 12, with the others).
  void AddSpecialFloors() {
    AddRows({On(76, 1, TenBars(19, 1, 0)), On(77, 2, TenBars(19, 1, 0)), On(78, 12, TenBars(19, 1, 0))});
  }

  static void Load() { ResultSite::Load(); }
};

}  // namespace rbt::test

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "session/startup/startup.h"
#include "support/site_fixture.h"

namespace rbt::test {

/// Ten bars of 6.0 m, cut and stock length alike.
inline Cells TenBars(std::int64_t diameter, std::int64_t shape, std::int64_t welds) {
  return {{"太さ", diameter},
          {"形状No", shape},
          {"本数", std::int64_t{10}},
          {"ヶ所", std::int64_t{1}},
          {"合計", std::int64_t{10}},
          {"伸切寸", std::int64_t{6000}},
          {"伸定尺", 6.0},
          {"伸本定", std::int64_t{1}},
          {"伸総計", std::int64_t{10}},
          {"圧接", welds}};
}

inline Cells At(Cells bar, std::int64_t page, std::int64_t line) {
  bar.emplace_back("頁", page);
  bar.emplace_back("行", line);
  return bar;
}

/// A small site for the result screens. Page 1 has a deformed bar D19, a welded hoop D13, an anchored bar
/// D25 and a thin bar U 9 in its lines 1 to 4.
class ResultSite : public SiteFixture {
 public:
  ResultSite() { AddRows({TenBars(19, 1, 3), TenBars(13, 87, 3), TenBars(25, 138, 3), TenBars(9, 2, 3)}); }

  /// As the menu leaves it to a screen.
  static void Load(std::int32_t start_mode = kNoStartMode) {
    StartOptions options;
    options.start_mode = TraitsOfStartMode(start_mode);
    LoadSite(options);
    ActivateMenu(options);
  }
};

}  // namespace rbt::test

// SPDX-License-Identifier: MIT
#include <cstdint>

#include "platform/numbers/number_words.h"
#include "session/startup/startup.h"
#include "shell/context/site_context.h"
#include "shell/preparation/preparation.h"
#include "tally/floorpart/floor_range.h"
#include "tally/floorpart/floor_tally.h"
#include "tally/floorpart/part_tally.h"
#include "tally/groups/shape_tally.h"
#include "tally/rows/bulk_tally.h"
#include "tally/rows/page_tally.h"
#include "tally/schedule_positions.h"
#include "tally/selection.h"
#include "work.h"

namespace rbt::bench {

namespace {

/// The menu, which comes to the front again over a site that nobody has changed.
Work Activation(const DemoSite& site) {
  const auto activate = [] { ActivateMenu(StartOptions()); };
  return {.name = "activation that changes nothing",
          .begin =
              [site, activate] {
                site.Bind();
                LoadSite(StartOptions());
                activate();
              },
          .run = [activate] { return CostOf(activate); }};
}

Work Tally(std::string_view name, const DemoSite& site, const std::function<void()>& tally) {
  return {.name = name, .begin = [site] { site.Open(); }, .run = [tally] { return CostOf(tally); }};
}

void TallyShapes() {
  const ShapeRange shapes = WholeShapeRange(*SiteContext.WorkDatabase);
  Selection.ShapeStart = shapes.first;
  Selection.ShapeEnd = shapes.last;
  Keijou_Jyuuryo_Syukei();
}

PositionRange WholeSite() { return WholePositionRange(*SiteContext.WorkDatabase, TallyKind::page).value(); }

void TallyPages() {
  const PositionRange range = WholeSite();
  const auto narrow = [](std::int32_t number) { return ToInt16(number, "position"); };
  PG_Jyuuryo_Syukei(narrow(range.first.page), narrow(range.first.line), narrow(range.last.page),
                    narrow(range.last.line));
}

void TallyPageShapes() {
  const PositionRange range = WholeSite();
  PKeijou_Jyuuryo_Syukei(range.first.page, range.first.line, range.last.page, range.last.line);
}

/// Every floor of the site, special floors too.
Work FloorTallyOf(std::string_view name, const DemoSite& site, const std::function<void()>& tally) {
  Work work = Tally(name, site, tally);
  work.begin = [site] {
    site.Open();
    FillFloorsAndParts(*SiteContext.WorkDatabase);
    const FloorExtent floors = ReadFloorExtent(*SiteContext.WorkDatabase).value();
    TakeFloors(Selection, AllFloors(floors), SpecialMask::All(), floors);
  };
  work.yardstick = Grouping::floor_and_part;
  return work;
}

}  // namespace

std::vector<Work> TallyWorks(const DemoSite& site) {
  std::vector<Work> works{Activation(site),
                          Tally("bulk tally", site, Jyuuryo_Syukei),
                          Tally("shape tally", site, TallyShapes),
                          Tally("page-shape tally", site, TallyPageShapes),
                          FloorTallyOf("floor tally", site, Kai_Jyuuryo_Syukei),
                          FloorTallyOf("part tally", site, [] {
                            Bui_Jyuuryo_Syukei(Selection.KaiMin, Selection.KaiEnd, 1, 1, 1);
                          })};
  // A tally by page numbers its pages in 16 bits; a million rows fill more.
  constexpr std::int64_t kMostRows = 500'000;
  if (site.Rows() <= kMostRows) works.push_back(Tally("page tally", site, TallyPages));
  return works;
}

}  // namespace rbt::bench

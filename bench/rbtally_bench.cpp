// SPDX-License-Identifier: MIT
// Times what a user waits for, each against the bare aggregation over the same file, taken in turn in the
// same run. `x_bare` is the ratio to quote; `peak_MB` the greatest resident memory meanwhile.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

#include <benchmark/benchmark.h>

#include "bench_site.h"
#include "platform/numbers/number_words.h"
#include "platform/system/services.h"
#include "session/startup/startup.h"
#include "shell/context/site_context.h"
#include "shell/preparation/preparation.h"
#include "tally/engine/stock_engine.h"
#include "tally/floorpart/floor_range.h"
#include "tally/floorpart/floor_tally.h"
#include "tally/floorpart/part_tally.h"
#include "tally/groups/shape_tally.h"
#include "tally/rows/bulk_tally.h"
#include "tally/rows/page_tally.h"
#include "tally/schedule_positions.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"
#include "yardstick.h"

namespace rbt::bench {
namespace {

namespace fs = std::filesystem;

/// A demonstration root with so many rows in its first site, its schedule as the entry programs leave it,
/// made once.
const fs::path& DemoRoot(std::int64_t rows) {
  static std::map<std::int64_t, fs::path> roots;
  fs::path& root = roots[rows];
  if (!root.empty()) return root;
  root = MakeDemoRoot(Folder() / std::to_string(rows), rows, 1);
  fs::copy_file(root / "DATA/GENBA001.MDB", root / "fresh.MDB");
  return root;
}

fs::path SiteFile(const fs::path& root) { return root / "DATA/GENBA001.MDB"; }

void CloseSite() { SiteContext = SiteContextData(); }

void Bind(const fs::path& root) {
  CloseSite();
  setenv("RBK_SETTINGS", (root / "settings.ini").c_str(), 1);
  Services.Root = root;
  Selection = SelectionData();
}

/// Times `work` and, in turn with it, the bare aggregation over the same file.
void Compare(benchmark::State& state, const fs::path& site, const std::function<void()>& set_up,
             const std::function<void()>& work, Grouping grouping = Grouping::diameter) {
  double worked = 0.0;
  double processor = 0.0;
  double bare = 0.0;
  double peak = 0.0;
  for ([[maybe_unused]] auto unused : state) {
    set_up();
    bare += BareAggregation(site, grouping);
    ResetPeakMemory();
    const double start = SecondsNow();
    const double processor_start = ProcessorSecondsNow();
    work();
    const double seconds = SecondsNow() - start;
    processor += ProcessorSecondsNow() - processor_start;
    worked += seconds;
    peak = std::max(peak, PeakMemoryMb());
    state.SetIterationTime(seconds);
  }
  state.counters["x_bare"] = worked / bare;
  const auto milliseconds = [&](double seconds) {
    return seconds / static_cast<double>(state.iterations()) * 1000.0;
  };
  state.counters["bare_ms"] = milliseconds(bare);
  state.counters["cpu_ms"] = milliseconds(processor);
  state.counters["peak_MB"] = peak;
}

StartOptions Options() {
  StartOptions options;
  options.command_line = true;
  return options;
}

void Load() { LoadSite(Options()); }
void Activate() { ActivateMenu(Options()); }

void LoadFreshSite(benchmark::State& state) {
  const fs::path& root = DemoRoot(state.range(0));
  const auto set_up = [&] {
    Bind(root);
    fs::copy_file(root / "fresh.MDB", SiteFile(root), fs::copy_options::overwrite_existing);
  };
  Compare(state, SiteFile(root), set_up, [] {
    Load();
    Activate();
  });
}

void LoadSiteAgain(benchmark::State& state) {
  const fs::path& root = DemoRoot(state.range(0));
  Bind(root);
  Load();
  Activate();
  Compare(
      state, SiteFile(root), [&] { Bind(root); }, Load);
}

void ActivateAgain(benchmark::State& state) {
  const fs::path& root = DemoRoot(state.range(0));
  Bind(root);
  Load();
  Activate();
  Compare(
      state, SiteFile(root), [] {}, Activate);
}

void Tally(benchmark::State& state, const std::function<void()>& tally) {
  const fs::path& root = DemoRoot(state.range(0));
  Bind(root);
  Load();
  Activate();
  Compare(
      state, SiteFile(root), [] {},
      [&] {
        tally();
        benchmark::DoNotOptimize(TallyGrid.TotalStockWeight);
      });
  CloseSite();
}

/// Every floor of the site, special floors too. The whole of what a press of the button costs.
void TallyFloors(benchmark::State& state, const std::function<void()>& tally) {
  const fs::path& root = DemoRoot(state.range(0));
  Bind(root);
  Load();
  Activate();
  FillFloorsAndParts(*SiteContext.WorkDatabase);
  const FloorExtent floors = ReadFloorExtent(*SiteContext.WorkDatabase).value();
  Selection.KaiStart = AllFloors(floors).start;
  Selection.KaiEnd = AllFloors(floors).end;
  Selection.KaiMin = floors.KaiMin;
  Selection.TokubetuMask = SpecialMask::All();
  Compare(
      state, SiteFile(root), [] {},
      [&] {
        tally();
        benchmark::DoNotOptimize(FloorTally.SouGoukei);
        benchmark::DoNotOptimize(PartTally.SouGoukei);
      },
      Grouping::floor_and_part);
  CloseSite();
}

void FloorTallyOfAllFloors(benchmark::State& state) { TallyFloors(state, Kai_Jyuuryo_Syukei); }

void PartTallyOfAllFloors(benchmark::State& state) {
  TallyFloors(state, [] { Bui_Jyuuryo_Syukei(Selection.KaiMin, Selection.KaiEnd, 1, 1, 1); });
}

void BulkTally(benchmark::State& state) { Tally(state, Jyuuryo_Syukei); }

void ShapeTally(benchmark::State& state) {
  Tally(state, [] {
    const ShapeRange shapes = WholeShapeRange(*SiteContext.WorkDatabase);
    Selection.ShapeStart = shapes.first;
    Selection.ShapeEnd = shapes.last;
    Keijou_Jyuuryo_Syukei();
  });
}

PositionRange WholeSite() { return WholePositionRange(*SiteContext.WorkDatabase, TallyKind::page).value(); }

void PageTally(benchmark::State& state) {
  Tally(state, [] {
    const PositionRange range = WholeSite();
    const auto narrow = [](std::int32_t number) { return ToInt16(number, "position"); };
    PG_Jyuuryo_Syukei(narrow(range.first.page), narrow(range.first.line), narrow(range.last.page),
                      narrow(range.last.line));
  });
}

void PageShapeTally(benchmark::State& state) {
  Tally(state, [] {
    const PositionRange range = WholeSite();
    PKeijou_Jyuuryo_Syukei(range.first.page, range.first.line, range.last.page, range.last.line);
  });
}

/// Calls of the stock-length engine, its settings read anew at each as a call by itself reads them, and read
/// once as within a tally.
void EngineCalls(benchmark::State& state) {
  Bind(DemoRoot(5000));
  const bool reads_settings = state.range(0) == 1;
  const EngineSettings settings = ReadEngineSettings();
  std::int32_t cut = 0;
  for ([[maybe_unused]] auto unused : state) {
    cut = 300 + (cut + 37) % 11700;
    if (reads_settings) {
      Teijyaku_Keisan(cut, Currency::FromInteger(17), 19);
    } else {
      benchmark::DoNotOptimize(ComputeStock(cut, Currency::FromInteger(17), 19, settings));
    }
  }
  state.counters["calls"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

void SizesUpTo(benchmark::internal::Benchmark* b, std::int64_t largest) {
  b->Arg(5000)->Arg(50000)->Arg(largest)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(0.5);
}

void Sizes(benchmark::internal::Benchmark* b) { SizesUpTo(b, 1000000); }

/// A tally by page numbers its pages in 16 bits; a million rows fill more.
void SizesByPage(benchmark::internal::Benchmark* b) { SizesUpTo(b, 500000); }

BENCHMARK(LoadFreshSite)->Apply(Sizes);
BENCHMARK(LoadSiteAgain)->Apply(Sizes);
BENCHMARK(ActivateAgain)->Apply(Sizes);
BENCHMARK(BulkTally)->Apply(Sizes);
BENCHMARK(ShapeTally)->Apply(Sizes);
BENCHMARK(PageTally)->Apply(SizesByPage);
BENCHMARK(PageShapeTally)->Apply(Sizes);
BENCHMARK(FloorTallyOfAllFloors)->Apply(Sizes);
BENCHMARK(PartTallyOfAllFloors)->Apply(Sizes);
BENCHMARK(EngineCalls)->ArgName("settings_read_anew")->Arg(0)->Arg(1);

}  // namespace
}  // namespace rbt::bench

BENCHMARK_MAIN();

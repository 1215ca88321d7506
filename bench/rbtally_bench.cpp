// SPDX-License-Identifier: MIT
// Times what a user waits for, each in turn with yardsticks over the same file.
// usage: rbtally_bench [--check] [--rows N,N,...] [--turns N] [--program RBTALLY] [WORDS]
// Shows the works whose names hold WORDS; "cold" are those of the command line, of this build or another.
// With --check only those that have a limit; one that is missed twice ends it with exit status 1.
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "speed_limits.h"

namespace rbt::bench {

namespace {

struct Order {
  bool check = false;
  std::vector<std::int64_t> rows;
  int turns = 0;
  std::string program = RBTALLY_PROGRAM;
  std::string words;
};

std::int64_t NumberOf(std::string_view text) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number < 1) {
    throw std::invalid_argument(fmt::format("{} is no number", text));
  }
  return number;
}

std::vector<std::int64_t> NumbersOf(std::string_view text) {
  std::vector<std::int64_t> numbers;
  while (true) {
    const std::size_t comma = std::min(text.find(','), text.size());
    numbers.push_back(NumberOf(text.substr(0, comma)));
    if (comma == text.size()) return numbers;
    text.remove_prefix(comma + 1);
  }
}

Order OrderOf(std::span<char*> words) {
  Order order;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string_view word = words[i];
    const bool has_value = i + 1 < words.size();
    if (word == "--check") {
      order.check = true;
    } else if (word == "--rows" && has_value) {
      order.rows = NumbersOf(words[++i]);
    } else if (word == "--turns" && has_value) {
      order.turns = static_cast<int>(NumberOf(words[++i]));
    } else if (word == "--program" && has_value) {
      order.program = words[++i];
    } else if (!word.starts_with("-") && order.words.empty()) {
      order.words = word;
    } else {
      throw std::invalid_argument(fmt::format("{} is not understood", word));
    }
  }
  if (order.rows.empty()) order.rows = order.check ? NumbersOf("50000") : NumbersOf("5000,50000,1000000");
  if (order.turns == 0) order.turns = order.check ? 5 : 9;
  return order;
}

std::vector<Limit> LimitsOf(const Work& work, const DemoSite& site) {
  std::vector<Limit> limits;
  std::ranges::copy_if(Limits(), std::back_inserter(limits), [&](const Limit& limit) {
    return limit.work == work.name && limit.rows == site.Rows();
  });
  return limits;
}

/// Of all works that are asked for. Commands come first: what this program holds counts as theirs.
std::vector<Work> WorksOf(const Order& order, const DemoSite& site) {
  std::vector<Work> works = ColdWorks(site, order.program);
  const auto add = [&](std::vector<Work> more) { std::ranges::move(more, std::back_inserter(works)); };
  add(TallyWorks(site));
#ifdef RBTALLY_BENCH_SCREENS
  add(ScreenWorks(site));
#endif
  add(EngineWorks(site));
  std::erase_if(works, [&](const Work& work) {
    return work.name.find(order.words) == std::string_view::npos ||
           (order.check && LimitsOf(work, site).empty());
  });
  return works;
}

void Show(const DemoSite& site, const Work& work, const Figures& figures) {
  constexpr double kMilliseconds = 1000.0;
  constexpr double kKilobyte = 1000.0;
  std::string counts;
  if (figures.counts) {
    counts = fmt::format("{:>6}{:>9.0f}", figures.counts->syncs,
                         static_cast<double>(figures.counts->bytes) / kKilobyte);
  }
  fmt::print("{:>8}  {:<34}{:>9.1f}{:>9.1f}{:>9.3f}  {:>7.3f} to {:<7.3f}{:>8.2f}{:>8.1f}{}\n", site.Rows(),
             work.name, figures.wall.middle * kMilliseconds, figures.processor.middle * kMilliseconds,
             figures.x_bare.middle, figures.x_bare.low, figures.x_bare.high, figures.x_fold.middle,
             figures.peak_mb, counts);
}

/// True where all limits are kept. Tells what is missed, and what is not yet where it is to come.
bool Keeps(const DemoSite& site, const Work& work, const Figures& figures) {
  bool kept = true;
  for (const Limit& limit : LimitsOf(work, site)) {
    const double figure = FigureOf(figures, limit.figure);
    const bool missed = figure > limit.most;
    kept = kept && !missed;
    if (figure > limit.wanted) {
      fmt::print("{:>8}  {} {}: {:.3f} {}, limit {}, wanted {}\n", "", missed ? "MISSED" : "not yet",
                 work.name, figure, NameOf(limit.figure), limit.most, limit.wanted);
    }
  }
  return kept;
}

bool Run(const Order& order) {
  fmt::print("{:>8}  {:<34}{:>9}{:>9}{:>9}  {:^18}{:>8}{:>8}{:>6}{:>9}\n", "rows", "", "wall ms", "CPU ms",
             "x bare", "half of them", "x fold", "peak MB", "syncs", "KB out");
  bool kept = true;
  for (const std::int64_t rows : order.rows) {
    const DemoSite site(rows);
    for (const Work& work : WorksOf(order, site)) {
      Figures figures = Measure(work, site, order.turns);
      Show(site, work, figures);
      if (!order.check || Keeps(site, work, figures)) continue;
      // Other programs disturb: a miss counts when more turns show it too.
      constexpr int kMoreTurns = 4;
      figures = Measure(work, site, order.turns * kMoreTurns);
      Show(site, work, figures);
      kept = Keeps(site, work, figures) && kept;
    }
  }
  return kept;
}

int Main(std::span<char*> words) {
  constexpr int kWrongUsage = 2;
  try {
    return Run(OrderOf(words)) ? EXIT_SUCCESS : EXIT_FAILURE;
  } catch (const std::invalid_argument& error) {
    fmt::print(stderr, "rbtally_bench: {}\n", error.what());
    return kWrongUsage;
  } catch (const std::exception& error) {
    fmt::print(stderr, "rbtally_bench: {}\n", error.what());
    return EXIT_FAILURE;
  }
}

}  // namespace

}  // namespace rbt::bench

int main(int argc, char** argv) {
  const std::span<char*> words(argv, static_cast<std::size_t>(argc));
  return rbt::bench::Main(words.subspan(words.empty() ? 0 : 1));
}

// SPDX-License-Identifier: MIT
#include "cli/options.h"

#include <limits>
#include <string_view>

#include "cli/command_line.h"
#include "platform/numbers/decimal_text.h"

namespace rbt {

namespace {

/// Two whole numbers with a sign between them, "3-12", "2/15" or "-2..5"; nothing when the text is not of
/// that form.
std::optional<std::pair<std::int32_t, std::int32_t>> ParsePair(std::string_view text, std::string_view sign) {
  const std::size_t at = text.find(sign, 1);
  if (at == std::string_view::npos) return std::nullopt;
  const auto first = WholeNumber(text.substr(0, at));
  const auto second = WholeNumber(text.substr(at + sign.size()));
  if (!first || !second) return std::nullopt;
  return std::pair(*first, *second);
}

/// An option whose text is a pair; any other text is wrong usage.
template <typename Target>
void AddPair(CommandLine& line, const std::string& name, std::optional<Target>& target, std::string_view sign,
             const std::string& form, const std::string& description) {
  const auto take = [&target, sign](const std::string& text) {
    const auto pair = ParsePair(text, sign);
    if (pair) target = Target{pair->first, pair->second};
    return pair.has_value();
  };
  line.FormOption(name, form, take, description);
}

/// "-2..5"; floors beyond the codes, too, are wrong usage.
bool TakeFloorRange(const std::string& text, std::optional<FloorRange>& floors) {
  const auto pair = ParsePair(text, "..");
  const auto is_floor = [](std::int32_t code) { return code >= kLowestFloor && code <= kNoFloor; };
  if (!pair || !is_floor(pair->first) || !is_floor(pair->second)) return false;
  floors = {static_cast<std::int16_t>(pair->first), static_cast<std::int16_t>(pair->second)};
  return true;
}

/// "3,1,12".
bool TakeNumbers(std::string_view text, std::vector<std::int32_t>& numbers) {
  using Limits = std::numeric_limits<std::int32_t>;
  const auto taken = WholeNumbersIn(text, Limits::min(), Limits::max());
  if (taken) numbers = *taken;
  return taken.has_value();
}

/// "10" or "-2.5".
bool TakePercent(std::string_view text, double& percent) {
  constexpr double kHighest = std::numeric_limits<double>::max();
  const std::optional<double> taken = DecimalIn(text, -kHighest, kHighest);
  if (taken) percent = *taken;
  return taken.has_value();
}

}  // namespace

void AddCommonOptions(CommandLine& line, CommonOptions& options) {
  line.RootOption();
  line.WaitOption();
  line.FileOption(
      "--site", "FILE", options.site,
      "schedule file in place of the site STEEL.INI names: its name in DATA, or its path below the "
      "root");
  line.NumberOption("--start-mode", "N", options.start_mode, "start mode of the calling program");
  line.Flag("--no-prepare", options.no_prepare, "write nothing of the site: classify a private copy");
  line.WordOption(
      "--jet", "", options.jet, {"read", "import", "refuse"},
      "real Jet files: read them where they are and never write them, import them in their place, "
      "or refuse them");
}

void AddSelectionOptions(CommandLine& line, SelectionOptions& options) {
  line.NumberOption("--kinds", options.kinds, 0, 15,
                    "material kinds, a sum of 1 deformed, 2 threaded, 4 high strength, 8 slit");
  line.NumberOption("--forms", options.forms, 0, 15,
                    "material forms, a sum of 1 raw, 2 raw and bent, 4 cut, 8 cut and bent");
  line.NumberOption("--ulbon", options.ulbon, 0, 1, "1 with thin high-strength bars, 0 without");
  line.NumberOption("--calc", options.calc, 0, 2,
                    "rows without a stock length that count: 0 not of high strength, 1 of it alone, 2 both");
  line.NumberOption("--hoops", options.hoops, 0, 2,
                    "welded closed hoops: 0 with others, 1 left out, 2 alone");
  line.NumberOption("--plates", options.plates, 0, 2,
                    "anchor-plate shapes: 0 with others, 1 left out, 2 alone");
  AddPair(line, "--shapes", options.shapes, "-", "A-B",
          "first and last shape number of the shape tally; default all");
  AddPair(line, "--from", options.from, "/", "P/L",
          "first page and line of the page and page-shape tallies; default the first of the schedule");
  AddPair(line, "--to", options.to, "/", "P/L", "last page and line; default the last of the schedule");
  line.FormOption(
      "--names", "N,N,...", [&options](const std::string& text) { return TakeNumbers(text, options.names); },
      "numbers of the registered names of the names tally; default none");
}

void AddFloorOptions(CommandLine& line, SelectionOptions& options) {
  line.FormOption(
      "--floors", "A..B",
      [&options](const std::string& text) { return TakeFloorRange(text, options.floors); },
      "first and last floor of the floor and part tallies, -5 to 78; default all of the schedule");
  line.NumberOption("--special", options.special, 0, SpecialMask::All().AsNumber(),
                    "special floors taken beside them, a sum of 1 R floor, 2 penthouse, 4 no floor");
  line.FormOption(
      "--uplift", "P", [&options](const std::string& text) { return TakePercent(text, options.uplift); },
      "percent by which the floor and part tallies are raised");
}

void AddFormatOption(CommandLine& line, std::string& format) {
  line.WordOption("--format", "", format, {"table", "json", "csv"}, "how the result is written");
}

void ApplySelection(const SelectionOptions& options, SelectionData& selection) {
  selection.MaterialKindMask = KindMask(options.kinds);
  selection.UlbonOnly = selection.MaterialKindMask.IsNone();
  selection.MaterialFormMask = FormMask(options.forms);
  selection.IncludeUlbon = options.ulbon == 1;
  selection.MaterialCalcChoice = static_cast<CalcChoice>(options.calc);  // the option took 0 to 2 alone
  selection.HoopMode = ShapeFilterOf(options.hoops);
  selection.AnchorPlateMode = ShapeFilterOf(options.plates);
  selection.UwanoseRitu = selection.BuiUwanoseRitu = options.uplift / 100.0;
}

}  // namespace rbt

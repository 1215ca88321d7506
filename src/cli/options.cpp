// SPDX-License-Identifier: MIT
#include "cli/options.h"

#include <charconv>
#include <string_view>

#include <CLI/CLI.hpp>

namespace rbt {

namespace {

/// Two whole numbers with a sign between them, "3-12" or "2/15"; nothing when the text is not of that form.
std::optional<std::pair<std::int32_t, std::int32_t>> ParsePair(std::string_view text, char sign) {
  const std::size_t at = text.find(sign, 1);
  if (at == std::string_view::npos) return std::nullopt;
  const auto number = [](std::string_view part) -> std::optional<std::int32_t> {
    std::int32_t value = 0;
    const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), value);
    if (error != std::errc() || end != part.data() + part.size()) return std::nullopt;
    return value;
  };
  const auto first = number(text.substr(0, at));
  const auto second = number(text.substr(at + 1));
  if (!first || !second) return std::nullopt;
  return std::pair(*first, *second);
}

/// An option whose text is a pair; any other text is wrong usage.
template <typename Target>
void AddPair(CLI::App& line, const std::string& name, std::optional<Target>& target, char sign,
             const std::string& form, const std::string& description) {
  line.add_option_function<std::string>(
          name,
          [&target, name, sign, form](const std::string& text) {
            const auto pair = ParsePair(text, sign);
            if (!pair) throw CLI::ValidationError(name, text + " is not of the form " + form);
            target = Target{pair->first, pair->second};
          },
          description)
      ->type_name(form);
}

template <typename Number>
void AddNumber(CLI::App& line, const std::string& name, Number& number, int highest,
               const std::string& description) {
  AddNumberOption(line, name, number, 0, highest, description);
}

}  // namespace

void AddCommonOptions(CLI::App& line, CommonOptions& options) {
  line.add_option("--root", options.root, "the root folder; default $RBK_ROOT")->type_name("DIR");
  line.add_option("--site", options.site, "schedule file name in place of the site STEEL.INI names")
      ->type_name("FILE");
  line.add_option("--start-mode", options.start_mode, "start mode of the calling program")
      ->type_name("N")
      ->capture_default_str();
  line.add_flag("--no-prepare", options.no_prepare, "leave the schedule as it is: no classification");
}

void AddSelectionOptions(CLI::App& line, SelectionOptions& options) {
  AddNumber(line, "--kinds", options.kinds, 15,
            "material kinds, a sum of 1 deformed, 2 threaded, 4 high strength, 8 slit");
  AddNumber(line, "--forms", options.forms, 15,
            "material forms, a sum of 1 raw, 2 raw and bent, 4 cut, 8 cut and bent");
  AddNumber(line, "--ulbon", options.ulbon, 1, "1 with thin high-strength bars, 0 without");
  AddNumber(line, "--calc", options.calc, 2,
            "rows without a stock length that count: 0 not of high strength, 1 of it alone, 2 both");
  AddNumber(line, "--hoops", options.hoops, 2, "welded closed hoops: 0 with others, 1 left out, 2 alone");
  AddNumber(line, "--plates", options.plates, 2, "anchor-plate shapes: 0 with others, 1 left out, 2 alone");
  AddPair(line, "--shapes", options.shapes, '-', "A-B",
          "first and last shape number of the shape tally; default all");
  AddPair(line, "--from", options.from, '/', "P/L",
          "first page and line of the page and page-shape tallies; default the first of the schedule");
  AddPair(line, "--to", options.to, '/', "P/L", "last page and line; default the last of the schedule");
}

void AddFormatOption(CLI::App& line, std::string& format) {
  line.add_option("--format", format, "how the result is written")
      ->type_name("table|json|csv")
      ->check(CLI::IsMember({"table", "json", "csv"}).description(""))
      ->capture_default_str();
}

void ApplySelection(const SelectionOptions& options, SelectionData& selection) {
  selection.MaterialKindMask = KindMask(options.kinds);
  selection.MaterialFormMask = FormMask(options.forms);
  selection.IncludeUlbon = options.ulbon == 1;
  selection.MaterialCalcChoice = static_cast<CalcChoice>(options.calc);  // the option took 0 to 2 alone
  selection.HoopMode = ShapeFilterOf(options.hoops);
  selection.AnchorPlateMode = ShapeFilterOf(options.plates);
}

}  // namespace rbt

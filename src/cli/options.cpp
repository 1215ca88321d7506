// SPDX-License-Identifier: MIT
#include "cli/options.h"

#include <CLI/CLI.hpp>

namespace rbt {

namespace {

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
}

void AddFormatOption(CLI::App& line, std::string& format) {
  line.add_option("--format", format, "how the result is written")
      ->type_name("table|json|csv")
      ->check(CLI::IsMember({"table", "json", "csv"}).description(""))
      ->capture_default_str();
}

void ApplySelection(const SelectionOptions& options, SelectionData& selection) {
  selection.MaterialKindMask = options.kinds;
  selection.MaterialFormMask = options.forms;
  selection.IncludeUlbon = options.ulbon;
  selection.MaterialCalcChoice = options.calc;
  selection.HoopMode = options.hoops;
  selection.AnchorPlateMode = options.plates;
}

}  // namespace rbt

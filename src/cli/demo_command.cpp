// SPDX-License-Identifier: MIT
#include <cstdint>
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "cli/options.h"
#include "demo/write_demo.h"

namespace rbt {

Action DefineDemo(CLI::App& line) {
  struct Options {
    std::string root;
    demo::DemoOptions demo;
  };
  auto options = std::make_shared<Options>();
  line.add_option("ROOT", options->root, "the folder to make; it must not exist or be empty")->required();
  AddNumberOption(line, "--sites", options->demo.sites, 1, demo::kMostSites, "number of sites");
  AddNumberOption(line, "--rows", options->demo.rows, 0, demo::kMostRows, "schedule lines of each site");
  AddNumberOption(line, "--seed", options->demo.seed, 0, demo::kHighestSeed,
                  "the same seed gives the same sites");
  return [options] { demo::WriteDemo(options->root, options->demo); };
}

}  // namespace rbt

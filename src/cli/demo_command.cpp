// SPDX-License-Identifier: MIT
#include <memory>
#include <string>

#include "cli/command_line.h"
#include "demo/write_demo.h"

namespace rbt {

Action DefineDemo(CommandLine& line) {
  struct Options {
    std::string root;
    demo::DemoOptions demo;
  };
  auto options = std::make_shared<Options>();
  line.FileArgument("ROOT", options->root, "the folder to make; it must not exist or be empty");
  line.NumberOption("--sites", options->demo.sites, 1, demo::kMostSites, "number of sites");
  line.NumberOption("--rows", options->demo.rows, 0, demo::kMostRows, "schedule lines of each site");
  line.NumberOption("--seed", options->demo.seed, 0, demo::kHighestSeed,
                    "the same seed gives the same sites");
  return [options] { demo::WriteDemo(options->root, options->demo); };
}

}  // namespace rbt

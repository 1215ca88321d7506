// SPDX-License-Identifier: MIT
#include "bench_site.h"

#include <cstdlib>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>

#include <fmt/format.h>

#include "bench_folder.h"
#include "platform/system/services.h"
#include "session/startup/startup.h"
#include "shell/context/site_context.h"
#include "tally/selection.h"

namespace rbt::bench {

namespace fs = std::filesystem;

fs::path MakeDemoRoot(const fs::path& root, std::int64_t rows, int sites) {
  const std::string command =
      fmt::format("{} demo {} --sites {} --rows {}", RBTALLY_PROGRAM, root.string(), sites, rows);
  if (std::system((command + " >/dev/null").c_str()) != 0) throw std::runtime_error("failed: " + command);
  return root;
}

void BindSite(std::int64_t rows, int site) {
  static std::map<std::int64_t, fs::path> roots;
  fs::path& root = roots[rows];
  if (root.empty()) {
    root = MakeDemoRoot(Folder() / ("plan-" + std::to_string(rows)), rows, rows > 10000 ? 1 : 3);
    std::ofstream(root / "settings.ini") << "[Jyuryo\\定尺]\n定尺13有無=1\n";
  }
  SiteContext = SiteContextData();
  setenv("RBK_SETTINGS", (root / "settings.ini").c_str(), 1);
  Services.Root = root;
  Selection = SelectionData();
  StartOptions options;
  options.command_line = true;
  options.site = fmt::format("GENBA{:03}.MDB", site);
  LoadSite(options);
  ActivateMenu(options);
}

}  // namespace rbt::bench

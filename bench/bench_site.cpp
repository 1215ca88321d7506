// SPDX-License-Identifier: MIT
#include "bench_site.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include <fmt/format.h>

#include "bench_folder.h"
#include "cost.h"
#include "platform/system/services.h"
#include "session/startup/startup.h"
#include "shell/context/site_context.h"
#include "tally/selection.h"

namespace rbt::bench {

namespace fs = std::filesystem;

namespace {

/// The settings and the caches of whoever measures are left alone.
void UseFoldersOf(const fs::path& root) {
  setenv("RBK_SETTINGS", (root / "settings.ini").c_str(), 1);
  setenv("XDG_CACHE_HOME", (root / "cache").c_str(), 1);
}

}  // namespace

void BindSite(std::int64_t rows, int site) {
  static std::map<std::int64_t, fs::path> roots;
  fs::path& root = roots[rows];
  if (root.empty()) {
    const fs::path made = Folder() / ("plan-" + std::to_string(rows));
    UseFoldersOf(made);
    CostOf({Command{RBTALLY_PROGRAM, "demo", made, "--sites", rows > 10000 ? "1" : "3", "--rows",
                    std::to_string(rows)}});
    root = made;
    std::ofstream(root / "settings.ini") << "[Jyuryo\\定尺]\n定尺13有無=1\n";
  }
  SiteContext = SiteContextData();
  UseFoldersOf(root);
  Services.Root = root;
  Selection = SelectionData();
  StartOptions options;
  options.command_line = true;
  options.site = fmt::format("GENBA{:03}.MDB", site);
  LoadSite(options);
  ActivateMenu(options);
}

}  // namespace rbt::bench

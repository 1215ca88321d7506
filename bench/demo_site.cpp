// SPDX-License-Identifier: MIT
#include "demo_site.h"

#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>

#include "bench_folder.h"
#include "cost.h"
#include "platform/system/services.h"
#include "session/startup/startup.h"
#include "shell/context/site_context.h"
#include "tally/selection.h"

namespace rbt::bench {

namespace {

namespace fs = std::filesystem;

fs::path Kept(const fs::path& root) { return root / "fresh.MDB"; }

void CloseSite() { SiteContext = SiteContextData(); }

}  // namespace

void DemoSite::UseOwnFolders() const {
  setenv("RBK_SETTINGS", (root_ / "settings.ini").c_str(), 1);
  setenv("XDG_CACHE_HOME", (root_ / "cache").c_str(), 1);
}

DemoSite::DemoSite(std::int64_t rows) : rows_(rows), root_(Folder() / std::to_string(rows)) {
  UseOwnFolders();
  CostOf({Command{RBTALLY_PROGRAM, "demo", root_, "--sites", "1", "--rows", std::to_string(rows)}});
  fs::copy_file(Schedule(), Kept(root_));
}

void DemoSite::MakeFresh() const {
  CloseSite();
  fs::copy_file(Kept(root_), Schedule(), fs::copy_options::overwrite_existing);
}

void DemoSite::AwaitSettled() const {
  std::this_thread::sleep_until(fs::last_write_time(Schedule()) + kSettlingTime);
}

void DemoSite::Bind() const {
  CloseSite();
  UseOwnFolders();
  Services.Root = root_;
  Selection = SelectionData();
}

void DemoSite::Open() const {
  Bind();
  StartOptions options;
  options.command_line = true;
  LoadSite(options);
  ActivateMenu(options);
}

}  // namespace rbt::bench

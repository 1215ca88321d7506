// SPDX-License-Identifier: MIT
#include "cli/session.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "cli/command.h"
#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/files/system_error.h"
#include "platform/system/paths.h"
#include "platform/text/characters.h"
#include "session/startup/startup.h"
#include "shell/context/site_context.h"
#include "shell/live/live_database.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

JetChoice JetChoiceOf(const CommonOptions& options) {
  if (options.jet == "read") return JetChoice::read_in_place;
  if (options.jet == "refuse") return JetChoice::refuse;
  if (options.no_prepare) throw UsageError("--jet import writes the site, which --no-prepare forbids");
  return JetChoice::import;
}

/// The path of a file below the root, from there; either may be spelled over links.
fs::path BelowRoot(const fs::path& file) {
  std::error_code error;
  const fs::path root = fs::weakly_canonical(Root(), error);
  for (const auto& [folder, path] :
       {std::pair(Root(), file.lexically_normal()), std::pair(root, fs::weakly_canonical(file, error))}) {
    if (LiesIn(folder, path)) return path.lexically_relative(folder);
  }
  throw FileFaultText(file, "lies outside the root " + Root().string());
}

}  // namespace

std::string SiteOfOption(const std::string& text) {
  if (text.find_first_of("\\/") == std::string::npos || text.starts_with('\\')) return text;
  const fs::path below = text.starts_with('/') ? BelowRoot(text) : fs::path(text);
  std::string site = "\\RBK\\" + below.string();
  std::ranges::replace(site, '/', '\\');
  // What is in DATA is a site like any other.
  constexpr std::string_view kData = "\\RBK\\DATA\\";
  const bool in_data = EqualIgnoringCase(std::string_view(site).substr(0, kData.size()), kData) &&
                       site.find('\\', kData.size()) == std::string::npos;
  return in_data ? site.substr(kData.size()) : site;
}

void RequireRoot() {
  if (Root().empty()) throw UsageError("no root folder: give --root DIR or set RBK_ROOT");
  std::error_code error;
  const fs::file_status status = fs::status(Root(), error);
  if (status.type() == fs::file_type::none) throw FileFault(Root(), "the root", error.value());
  if (!fs::is_directory(status)) {
    throw Fault(FaultKind::file, "the root " + Root().string() + " is no folder");
  }
}

void OpenSite(const CommonOptions& options) {
  RequireRoot();
  StartOptions start;
  start.start_mode = TraitsOfStartMode(options.start_mode);
  start.prepare = !options.no_prepare;
  start.site = SiteOfOption(options.site);
  start.jet = JetChoiceOf(options);
  start.command_line = true;
  LoadSite(start);
  // Another program may have chosen another site in between.
  start.site = SelectedSite();
  ActivateMenu(start);
}

}  // namespace rbt

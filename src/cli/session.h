// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/options.h"

namespace rbt {

/// Binds the program to a site the way the menu does: the load steps, then one activation, with no sibling
/// started and no accumulation touched. Leaves the site and the master database open in `SiteContext`.
/// Throws `UsageError` when no root folder is named, `file` when it does not exist.
void OpenSite(const CommonOptions& options);

/// The site that `--site` names, as `StartOptions` takes it: a name in DATA as it is, a path below the root,
/// relative to it or absolute, as a family path. One outside the root throws `file`.
std::string SiteOfOption(const std::string& text);

/// The root folder alone, for commands that need no site. Throws like `OpenSite`.
void RequireRoot();

}  // namespace rbt

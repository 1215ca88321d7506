// SPDX-License-Identifier: MIT
#pragma once

#include "cli/options.h"

namespace rbt {

/// Binds the program to a site the way the menu does: the load steps, then one activation, with no sibling
/// started and no accumulation touched. Leaves the site and the master database open in `SiteContext`.
/// Throws `UsageError` when no root folder is named, `file` when it does not exist.
void OpenSite(const CommonOptions& options);

/// The root folder alone, for commands that need no site. Throws like `OpenSite`.
void RequireRoot();

}  // namespace rbt

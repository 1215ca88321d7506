// SPDX-License-Identifier: MIT
#pragma once

#include "session/panels/views.h"

namespace rbt {

/// The head of the bound site, from the open master database and the load. Faults: `database` when the master
/// database lacks the site.
HeadView ReadHead();

}  // namespace rbt

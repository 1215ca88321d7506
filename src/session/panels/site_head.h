// SPDX-License-Identifier: MIT
#pragma once

#include "session/panels/views.h"

namespace rbt {

/// Binds the site that the family has chosen (選択ＤＢ名), whole where it is another than the bound one (see
/// `FollowSelectedSite`), and opens its database, the master database where it is not open yet. What a screen
/// begins with.
void BindChosenSite();

/// The head of the bound site, from the open master database and the load. Faults: `database` when the master
/// database lacks the site.
HeadView ReadHead();

}  // namespace rbt

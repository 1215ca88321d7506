// SPDX-License-Identifier: MIT
#pragma once

namespace rbt {

/// Tallies the rows of the marked registered names into `TallyGrid` as the schedule stores their stock, and
/// sets the presence flags; zeros where no name is marked. The marks are those of
/// `SiteContext.NameDatabase`, or, where no work with names is under way, of the site's companion file.
/// `SiteContext.WorkDatabase` must be open. A fault ends it and leaves `TallyGrid` empty.
void Touroku_Jyuuryo_Syukei();

}  // namespace rbt

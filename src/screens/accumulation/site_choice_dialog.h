// SPDX-License-Identifier: MIT
#pragma once

#include "session/accumulation/site_choice.h"

namespace rbt {

/// Shows `BACKUP2` in place of the active form. Where there is no site to choose it does not show, and the
/// event loop is told to end.
SiteChoice ChooseSite();

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "session/accumulation/site_choice.h"

namespace rbt {

/// Shows `BACKUP2` in place of the active form. Nothing when no site was chosen. Where there is no site to
/// choose, the program ends.
std::optional<AddedSite> ChooseSite();

}  // namespace rbt

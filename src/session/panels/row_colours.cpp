// SPDX-License-Identifier: MIT
#include "session/panels/row_colours.h"

#include "shell/config/settings.h"

namespace rbt {

std::optional<RowColours> AlternateColours() {
  if (Settings.AlternateRowColours != 1) return std::nullopt;
  return RowColours{Settings.GridRowBackColor, Settings.GridRowForeColor};
}

}  // namespace rbt

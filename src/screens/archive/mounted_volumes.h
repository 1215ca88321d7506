// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "session/archive/backup_presenter.h"

namespace rbt {

/// What is mounted on this machine, the folders of the system alone left out; each under its path, with its
/// label where it has one.
std::vector<Volume> MountedVolumes();

}  // namespace rbt

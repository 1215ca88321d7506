// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "jet/import/import_file.h"
#include "store/database.h"

namespace rbt {

/// `jet::ImportJetFileInPlace` of a file that may have been read in place: what was saved in its working
/// copies is in the new file when that takes its name, and the copies are gone behind it. One that cannot be
/// read stays, and the user is told.
jet::ImportReport ImportInPlaceWithSaved(const std::filesystem::path& file,
                                         jet::OnDamage on_damage = jet::OnDamage::refuse);

/// Tells the user of working copies beside a file of the store that hold saved tallies which it lacks: it has
/// taken the place of a Jet file in another way.
void TellOfSavedElsewhere(Database& store, const std::filesystem::path& file);

}  // namespace rbt

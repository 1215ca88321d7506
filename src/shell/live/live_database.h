// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "store/database.h"

namespace rbt {

/// What becomes of a real Jet file that stands where a database is looked for.
enum class JetChoice {
  read_in_place,  ///< it stays and is never written: a working copy of the store stands in for it
  import,         ///< a file of the store takes its place, see `jet::ImportJetFileInPlace`
  refuse,         ///< opening it throws `file`, which names the command that takes it over
};

/// How the databases of the family are opened.
struct LiveUse {
  JetChoice jet = JetChoice::read_in_place;
  bool only_read = false;  ///< nothing is written into the file's folder, and the database is not written
};

/// Opens a database of the family: the file itself where it is one of the store, or what `use` makes of a
/// real Jet file. The working copy of one that is read in place is up to date when it is opened: where the
/// Jet file has changed, or none is there yet, it is made anew, and what was saved in the old one goes with
/// it, see `RenewWorkingCopy`. Throws what `Database::Open` throws, and `file` for a Jet file that is damaged
/// or that keeps changing while it is read.
Database OpenLive(const std::filesystem::path& file, const LiveUse& use);
/// The same for reading; the place of the working copy is that of `use`.
Database OpenLiveForReading(const std::filesystem::path& file, const LiveUse& use);

/// True where an open database, or the private copy of one, is what stands for `file` now: its name still
/// leads to it, and no Jet file behind it has changed since it was read. Costs a look at what the system
/// notes of the file, and in working copies the reading of one row; of the whole file only while another
/// program has it open.
bool StandsFor(Database& open, const std::filesystem::path& file);
/// True where what was read of `file` is what stands in it now, by its bytes: the whole file is read.
bool HoldsBytesOf(Database& open, const std::filesystem::path& file);

/// Tells one working copy of a Jet file from every other, one that was made anew from the one before; empty
/// for a file of the store.
std::string MarkOfCopy(Database& open, const std::filesystem::path& file);

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "store/database.h"

namespace rbt {

/// What somebody is about with the tallies of a site.
enum class ArchiveUse { reads, writes };

/// The bound site's own file, where its tallies are saved: the open site database, or, where a private copy
/// or a reading stands in for it there, the file opened for the life of the object. Throws what opening
/// throws. Of a real Jet file that is read in place it is the working copy; whoever writes gets the one that
/// keeps what is saved, with the tables for it.
class SiteFile {
 public:
  explicit SiteFile(ArchiveUse use = ArchiveUse::writes);

  Database& operator*() const { return *database_; }

 private:
  std::unique_ptr<Database> own_;
  Database* database_;
};

}  // namespace rbt

// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "store/database.h"

namespace rbt {

/// The bound site's own file, where its tallies are saved: the open site database, or, where a private copy
/// or a reading stands in for it there, the file opened for the life of the object. Throws what opening
/// throws.
class SiteFile {
 public:
  SiteFile();

  Database& operator*() const { return *database_; }

 private:
  std::unique_ptr<Database> own_;
  Database* database_;
};

}  // namespace rbt

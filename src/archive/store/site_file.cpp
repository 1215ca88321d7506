// SPDX-License-Identifier: MIT
#include "archive/store/site_file.h"

#include "platform/fault.h"
#include "shell/context/site_context.h"

namespace rbt {

SiteFile::SiteFile() : database_(SiteContext.WorkDatabase.get()) {
  if (database_ == nullptr) throw Fault(FaultKind::database, "no site database is open");
  if (!database_->IsPrivateCopy() && database_->MayBeWritten()) return;
  own_ = std::make_unique<Database>(Database::Open(database_->File()));
  database_ = own_.get();
}

}  // namespace rbt

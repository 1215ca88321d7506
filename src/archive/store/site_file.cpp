// SPDX-License-Identifier: MIT
#include "archive/store/site_file.h"

#include "archive/check_jsyukei.h"
#include "platform/fault.h"
#include "shell/context/site_context.h"
#include "shell/live/live_database.h"

namespace rbt {

SiteFile::SiteFile(ArchiveUse use) : database_(SiteContext.WorkDatabase.get()) {
  if (database_ == nullptr) throw Fault(FaultKind::database, "no site database is open");
  // Another program may have made a working copy anew.
  const bool is_old_copy = SiteIsWorkingCopy() && database_->HasMoved();
  if (!database_->IsPrivateCopy() && database_->MayBeWritten() && !is_old_copy) {
    if (use == ArchiveUse::writes && SiteIsAnotherCopy()) Check_JSyukei();
    return;
  }
  LiveUse live = UseOfSite();
  if (use == ArchiveUse::writes) live.only_read = false;
  own_ = std::make_unique<Database>(OpenLive(PathOfSite(), live));
  database_ = own_.get();
}

}  // namespace rbt

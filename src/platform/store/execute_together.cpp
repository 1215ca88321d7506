// SPDX-License-Identifier: MIT
#include "platform/store/database.h"
#include "platform/store/database_impl.h"

namespace rbt {

ChangeStatement Database::Impl::Fuse(std::span<const std::string> updates) {
  schema_.Refresh();
  return NamingFile(connection_, [&] { return FuseUpdates(updates, schema_); });
}

std::int64_t Database::ExecuteTogether(std::span<const std::string> updates) {
  if (updates.empty()) return 0;
  impl_->RequireWritable(updates.front());
  const ChangeStatement fused = impl_->Fuse(updates);
  std::string text;
  for (const std::string& update : updates) text += (text.empty() ? "" : "; ") + update;
  return impl_->Connected().Run(fused.sql, text);
}

}  // namespace rbt

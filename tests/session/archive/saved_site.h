// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "archive/store/archive_site.h"
#include "session/startup/startup.h"
#include "support/kept_services.h"

namespace rbt::test {

/// A site as the menu leaves it to a screen, at 2026-11-21 09:00:00, with messages as a list of texts.
class SavedSite : public ArchiveSite {
 public:
  SavedSite() {
    LoadSite({});
    ActivateMenu({});
  }

  /// Saves `SmallTally` of a kind under a name, at a second of its own, as another program does.
  void Keep(const std::string& name, TallyKind kind = TallyKind::bulk, const std::string& memo = "") {
    SaveOrder order = Order(name, ++seconds_);
    order.key.date = "20261101";
    order.memos[0] = memo;
    ASSERT_TRUE(Save(SmallTally(kind), order));
  }
  /// Messages from number `from` on: "title: text|".
  std::string Told(std::size_t from = 0) const {
    std::string told;
    for (std::size_t i = from; i < Messages().size(); ++i) {
      told += Messages()[i].title + ": " + Messages()[i].text + "|";
    }
    return told;
  }
  std::string Names(TallyKind kind = TallyKind::bulk) const {
    std::string names;
    for (const SavedTally& saved : List(kind)) names += saved.name + "|";
    return names;
  }

 private:
  int seconds_ = 0;
};

}  // namespace rbt::test

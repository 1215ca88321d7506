// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "session/names/name_site.h"
#include "session/names/names_presenter.h"
#include "session/panels/site_head.h"
#include "shell/context/site_context.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/selection.h"

namespace rbt::test {

/// The screen of registered names over the small site, with tally screens that note what they would show.
class NamesScreen : public testing::Test {
 protected:
  NamesPresenter& Open() {
    NameSite::Load();
    NamesParts parts;
    parts.open_tally = [this] { Opened("JS"); };
    parts.open_shapes = [this] { Opened("KEIJOJS"); };
    parts.save_csv = [this](const std::vector<RegisteredName>& names) {
      Opened("CSV");
      for (const RegisteredName& name : names) listed_ += name.name + (name.marked ? "1 " : "0 ");
    };
    screen_ = std::make_unique<NamesPresenter>(std::move(parts));
    return *screen_;
  }
  /// A tally screen closes the site's database when it goes.
  void Opened(const std::string& form) {
    opened_ += form + " ";
    kind_ = Selection.TallyKind;
    if (form == "JS") bars_ = CountTally(TallyKind::names).Grid().BarCount[3][5];
    if (form != "CSV") SiteContext.WorkDatabase.reset();
    if (meanwhile_) meanwhile_();
  }
  /// As a tally screen does that loads after another program has chosen.
  void BindElsewhere(const char* schedule) {
    site_.Choose(schedule);
    BindChosenSite();
    ASSERT_EQ(SiteContext.NameDatabase, nullptr);
  }
  std::string Marks() {
    std::string marks;
    for (const auto& row : screen_->View().rows) marks += row[0] + row[1] + row[2] + " ";
    return marks;
  }
  void EnterRange(const std::string& start, const std::string& end) {
    screen_->TypeRangeStart(start);
    screen_->EnterRangeStart();
    screen_->TypeRangeEnd(end);
    screen_->EnterRangeEnd();
  }
  std::string Told() const {
    std::string told;
    for (const ShownMessage& message : site_.Messages()) told += message.title + ": " + message.text + "|";
    return told;
  }

  NameSite site_;
  std::unique_ptr<NamesPresenter> screen_;
  std::string listed_;
  std::string opened_;
  std::function<void()> meanwhile_;  ///< what comes about while a tally screen is open
  TallyKind kind_ = TallyKind::bulk;
  std::int32_t bars_ = 0;
};

}  // namespace rbt::test

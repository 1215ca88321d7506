// SPDX-License-Identifier: MIT
#include "desktop/action.h"

#include <QWidget>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/site_fixture.h"

namespace rbt::test {

TEST(Action, AFaultIsShownUnderTheFormsTitle) {
  const SiteFixture site;
  QWidget form;
  form.setWindowTitle("重量集計");
  EXPECT_FALSE(RunAction(form, [] { throw Fault(FaultKind::division_by_zero, "伸切寸"); }));
  ASSERT_EQ(site.Messages().size(), 1U);
  EXPECT_EQ(site.Messages()[0].text,
            "0 で割る計算になりました。\n下の行に示したデータを直して下さい。\n\ndivision by zero: 伸切寸");
  EXPECT_EQ(site.Messages()[0].buttons, MessageButtons::ok_to_warning);
  EXPECT_EQ(site.Messages()[0].title, "重量集計");
  EXPECT_FALSE(ActionRunning());
}

TEST(Action, RunsWhileItIsUnderWayOnly) {
  const QWidget form;
  bool running = false;
  EXPECT_TRUE(RunAction(form, [&] {
    RunAction(form, [] {});
    running = ActionRunning();
  }));
  EXPECT_TRUE(running);
  EXPECT_FALSE(ActionRunning());
}

}  // namespace rbt::test

// SPDX-License-Identifier: MIT
#include "desktop/wait_sign.h"

#include <QCursor>
#include <QGuiApplication>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

#include "desktop/action.h"
#include "desktop/form.h"
#include "support/site_fixture.h"

namespace rbt::test {

namespace {

bool Waits() {
  const QCursor* cursor = QGuiApplication::overrideCursor();
  return cursor != nullptr && cursor->shape() == Qt::WaitCursor;
}

}  // namespace

TEST(WaitSign, ShowsWhileAnActionRuns) {
  const SiteFixture site;
  const QWidget form;
  bool waits = false;
  RunAction(form, [&] { RunAction(form, [&] { waits = Waits(); }); });
  EXPECT_TRUE(waits);
  EXPECT_FALSE(Waits());
}

TEST(WaitSign, RestsWhileAModalFormWaitsForTheUser) {
  const SiteFixture site;
  const QWidget below;
  bool waits = true;
  bool waits_again = false;
  RunAction(below, [&] {
    QWidget form;
    QTimer::singleShot(0, [&] {
      waits = Waits();
      form.hide();
    });
    ShowModally(form);
    waits_again = Waits();
  });
  EXPECT_FALSE(waits);
  EXPECT_TRUE(waits_again);
  EXPECT_FALSE(Waits());
}

}  // namespace rbt::test

// SPDX-License-Identifier: MIT
#include "desktop/form_place.h"

#include <chrono>
#include <fcntl.h>
#include <sys/file.h>

#include <QElapsedTimer>
#include <QScreen>
#include <QWidget>
#include <gtest/gtest.h>

#include "platform/files/file_descriptor.h"
#include "platform/files/file_lock.h"
#include "platform/profile/registry.h"
#include "support/desktop/key_press.h"
#include "support/site_fixture.h"

namespace rbt::test {

namespace {

/// A named form as the user finds it.
struct Form : QWidget {
  explicit Form(const char* name = "JS") {
    setObjectName(name);
    resize(300, 200);
  }
};

void WaitForTheWindow() {
  constexpr int kMilliseconds = 300;
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < kMilliseconds) Settle();
}

}  // namespace

TEST(FormPlace, IsTheMiddleOfTheScreenAtFirst) {
  const SiteFixture site;
  Form form;
  PlaceForm(form);
  const QRect area = form.screen()->availableGeometry();
  EXPECT_EQ(form.size(), QSize(300, 200));
  EXPECT_EQ(form.x(), area.left() + (area.width() - 300) / 2);
  EXPECT_LT(form.y(), area.top() + (area.height() - 200) / 2) << "the title bar needs room";
}

TEST(FormPlace, AFormThatIsLargerThanTheWorkAreaIsHeldToIt) {
  const SiteFixture site;
  Form form;
  form.resize(5000, 4000);
  PlaceForm(form);
  const QRect area = form.screen()->availableGeometry();
  EXPECT_TRUE(area.contains(QRect(form.pos(), form.size())));
  EXPECT_LT(form.height(), area.height());
}

TEST(FormPlace, AFormThatCannotShrinkIntoTheWorkAreaBeginsAtItsEdge) {
  const SiteFixture site;
  Form form;
  form.setMinimumSize(5000, 4000);
  PlaceForm(form);
  EXPECT_EQ(form.pos(), form.screen()->availableGeometry().topLeft());
}

TEST(FormPlace, IsWhereTheUserLeftTheFormOfThatName) {
  const SiteFixture site;
  {
    Form form;
    PlaceForm(form);
    form.show();
    WaitForTheWindow();
    form.move(40, 50);
    form.resize(320, 240);
    form.hide();
  }
  Form again;
  PlaceForm(again);
  EXPECT_EQ(again.pos(), QPoint(40, 50));
  EXPECT_EQ(again.size(), QSize(320, 240));
  Form other("PGJS");
  PlaceForm(other);
  EXPECT_EQ(other.size(), QSize(300, 200));
}

TEST(FormPlace, AFormThatWasNotMovedKeepsNothing) {
  const SiteFixture site;
  Form form;
  PlaceForm(form);
  form.show();
  WaitForTheWindow();
  form.hide();
  EXPECT_FALSE(RegistryText("rbtally1", "画面", "JS"));
}

TEST(FormPlace, APlaceBeyondTheScreenAndOneThatCannotBeReadAreMended) {
  const SiteFixture site;
  for (const char* kept : {"9000 9000 300 200", "-500 -500 300 200", "1 2 3", "a b c d"}) {
    SetRegistryText("rbtally1", "画面", "JS", kept);
    Form form;
    PlaceForm(form);
    EXPECT_TRUE(form.screen()->availableGeometry().contains(QRect(form.pos(), form.size()))) << kept;
    EXPECT_EQ(form.size(), QSize(300, 200)) << kept;
  }
}

TEST(FormPlace, OneThatCannotBeKeptBecauseTheSettingsAreHeldIsLeftWithoutAWord) {
  const SiteFixture site;
  Services.LockPatience = std::chrono::milliseconds(0);
  SetRegistryText("rbtally1", "画面", "PGJS", "1 2 300 200");
  Form form;
  PlaceForm(form);
  form.show();
  WaitForTheWindow();
  form.move(40, 50);
  const FileDescriptor folder(::open(RegistryFile().parent_path().c_str(), O_RDONLY | O_DIRECTORY));
  ASSERT_TRUE(Lock(folder, LOCK_EX | LOCK_NB));
  form.hide();
  EXPECT_FALSE(RegistryText("rbtally1", "画面", "JS"));
  EXPECT_TRUE(site.Messages().empty());
}

}  // namespace rbt::test

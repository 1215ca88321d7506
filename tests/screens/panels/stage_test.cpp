// SPDX-License-Identifier: MIT
#include "screens/panels/stage.h"

#include <array>
#include <string>

#include <QEvent>
#include <QLineEdit>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "screens/panels/busy_notice.h"
#include "support/desktop/key_press.h"

namespace rbt::test {

namespace {

/// Notes which panel comes and which goes.
class Watcher : public QObject {
 public:
  bool eventFilter(QObject* panel, QEvent* event) override {
    if (event->type() == QEvent::Show) seen += "+" + panel->objectName().toStdString();
    if (event->type() == QEvent::Hide) seen += "-" + panel->objectName().toStdString();
    return false;
  }
  std::string seen;
};

}  // namespace

TEST(Stage, PanelsThatGoMakeRoomBeforeOthersCome) {
  QWidget form;
  auto* layout = new QVBoxLayout(&form);
  Watcher watcher;
  std::array<QWidget*, 2> panels{new QWidget(&form), new QWidget(&form)};
  for (QWidget* panel : panels) {
    panel->setMinimumHeight(300);
    layout->addWidget(panel);
  }
  panels[0]->setObjectName("a");
  panels[1]->setObjectName("b");
  panels[1]->hide();
  form.show();
  Settle();
  const int height = form.height();
  for (QWidget* panel : panels) panel->installEventFilter(&watcher);
  const std::array<std::pair<QWidget*, bool>, 2> other{{{panels[0], false}, {panels[1], true}}};
  SwitchPanels(other);
  Settle();
  const std::array<std::pair<QWidget*, bool>, 2> back{{{panels[0], true}, {panels[1], false}}};
  SwitchPanels(back);
  Settle();
  EXPECT_EQ(watcher.seen, "-a+b-b+a");
  EXPECT_EQ(form.height(), height);
}

TEST(Stage, TheFocusComesBackAfterWorkThatTookItAway) {
  QWidget form;
  auto* layout = new QVBoxLayout(&form);
  auto* first = new QLineEdit(&form);
  auto* second = new QLineEdit(&form);
  layout->addWidget(first);
  layout->addWidget(second);
  form.show();
  form.activateWindow();
  second->setFocus();
  Settle();
  FocusOverWork focus(form);
  focus.Show(true, [&] { second->setEnabled(false); });
  EXPECT_NE(form.focusWidget(), second);
  focus.Show(true, [] {});
  focus.Show(false, [&] { second->setEnabled(true); });
  EXPECT_EQ(form.focusWidget(), second);
  first->setFocus();
  focus.Show(false, [] {});
  EXPECT_EQ(form.focusWidget(), first) << "without work the focus stays";
}

TEST(BusyNotice, FloatsOverItsPlaceWithoutMovingWhatLiesAround) {
  QWidget form;
  auto* layout = new QVBoxLayout(&form);
  auto* grid = new QWidget(&form);
  grid->setMinimumSize(400, 300);
  auto* notice = new BusyNotice(&form);
  auto* buttons = new QLineEdit(&form);
  layout->addWidget(grid);
  layout->addWidget(notice);
  layout->addWidget(buttons);
  notice->Float(*layout);
  form.show();
  Settle();
  const QRect before = buttons->geometry();
  EXPECT_FALSE(notice->isVisible());
  notice->ShowOver(grid->geometry(), true);
  Settle();
  EXPECT_TRUE(notice->isVisible());
  EXPECT_TRUE(grid->geometry().contains(notice->geometry()));
  EXPECT_LE((notice->geometry().center() - grid->geometry().center()).manhattanLength(), 2);
  EXPECT_EQ(buttons->geometry(), before);
  notice->ShowOver(grid->geometry(), false);
  EXPECT_FALSE(notice->isVisible());
}

}  // namespace rbt::test

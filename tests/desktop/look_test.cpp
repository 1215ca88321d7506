// SPDX-License-Identifier: MIT
#include "desktop/look.h"

#include <QApplication>
#include <QIcon>
#include <gtest/gtest.h>

namespace rbt::test {

TEST(Look, TitlesCarryNoSuffix) {
  // A display name of its own would be put behind every title.
  EXPECT_EQ(QApplication::applicationDisplayName(), QApplication::applicationName());
}

TEST(Look, EveryWindowHasTheIcon) {
  const QIcon icon = QApplication::windowIcon();
  ASSERT_FALSE(icon.isNull());
  const QImage picture = icon.pixmap(32, 32).toImage();
  EXPECT_EQ(picture.pixelColor(16, 10), QColor(Qt::white));
  EXPECT_EQ(picture.pixelColor(16, 2), QColor("#1457a8"));
}

}  // namespace rbt::test

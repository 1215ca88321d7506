// SPDX-License-Identifier: MIT
#include <QApplication>
#include <gtest/gtest.h>

#include "desktop/look.h"

/// One application object for all tests of the program; no display is needed.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  rbt::PrepareDesktop();
  return RUN_ALL_TESTS();
}

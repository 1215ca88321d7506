// SPDX-License-Identifier: MIT
#include <QApplication>
#include <gtest/gtest.h>

#include "desktop/colour.h"
#include "desktop/look.h"
#include "desktop/message_box.h"
#include "desktop/pending_events.h"
#include "platform/system/services.h"

/// One application object for all tests of the program; no display is needed.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  rbt::PrepareDesktop();
  rbt::Services.Messages = rbt::ShowMessage;
  rbt::Services.Colours = rbt::AskColour;
  rbt::Services.PendingEvents = rbt::ProcessEventsWithoutInput;
  return RUN_ALL_TESTS();
}
